#include "mirovahrctl/pluginside/statementtap.h"

#include <QSqlDriver>
#include <QSqlRecord>
#include <QSqlResult>

#include <utility>

struct StatementTap::Tap {
    QStringList statements;
    QVariantList answer;
};

namespace {

using TapPointer = std::shared_ptr<StatementTap::Tap>;

/// As QSqlDatabase knows the driver, and a name that no site's database has: the plugin calls its
/// connection after the database, and takes up one of the same name.
const QString kName = QStringLiteral("MirovaHR: statement tap");

class TapResult : public QSqlResult {
public:
    TapResult(const QSqlDriver *driver, TapPointer tap)
        : QSqlResult(driver)
        , m_tap(std::move(tap))
    {
    }

protected:
    bool reset(const QString &sql) override
    {
        m_tap->statements += sql;
        setSelect(sql.startsWith(QLatin1String("SELECT ")));
        setAt(QSql::BeforeFirstRow);
        setActive(true);
        return true;
    }

    QVariant data(int column) override { return m_tap->answer.value(column, 0); }
    bool isNull(int) override { return false; }
    int size() override { return isSelect() ? 1 : -1; }
    int numRowsAffected() override { return 1; }
    QVariant lastInsertId() const override { return 1; }

    bool fetch(int row) override
    {
        setAt(row == 0 ? 0 : static_cast<int>(QSql::AfterLastRow));
        return isSelect() && row == 0;
    }
    bool fetchFirst() override { return fetch(0); }
    bool fetchLast() override { return fetch(0); }

private:
    const TapPointer m_tap;
};

class TapDriver : public QSqlDriver {
public:
    explicit TapDriver(TapPointer tap)
        : m_tap(std::move(tap))
    {
    }

    bool hasFeature(DriverFeature feature) const override { return feature == Transactions; }
    bool beginTransaction() override { return true; }
    bool commitTransaction() override { return true; }
    bool rollbackTransaction() override { return true; }

    bool open(const QString &, const QString &, const QString &, const QString &, int,
              const QString &) override
    {
        setOpen(true);
        return true;
    }
    void close() override { setOpen(false); }
    QSqlResult *createResult() const override { return new TapResult(this, m_tap); }

private:
    const TapPointer m_tap;
};

class TapCreator : public QSqlDriverCreatorBase {
public:
    explicit TapCreator(TapPointer tap)
        : m_tap(std::move(tap))
    {
    }

    QSqlDriver *createObject() const override { return new TapDriver(m_tap); }

private:
    const TapPointer m_tap;
};

} // namespace

StatementTap::StatementTap()
    : m_tap(std::make_shared<Tap>())
{
    QSqlDatabase::registerSqlDriver(kName, new TapCreator(m_tap));
    QSqlDatabase tapped = QSqlDatabase::addDatabase(kName, kName);
    tapped.setDatabaseName(kName);
}

StatementTap::~StatementTap()
{
    const QStringList names = QSqlDatabase::connectionNames();
    for (const QString &name : names) {
        if (QSqlDatabase::database(name, false).driverName() == kName)
            QSqlDatabase::removeDatabase(name);
    }
    QSqlDatabase::registerSqlDriver(kName, nullptr);
}

QSqlDatabase StatementTap::database() const
{
    return QSqlDatabase::database(kName);
}

void StatementTap::setAnswer(const QVariantList &row)
{
    m_tap->answer = row;
}

QStringList StatementTap::takeStatements()
{
    return std::exchange(m_tap->statements, {});
}
