#include "mirovahrctl/pluginside/pluginview.h"

#include "cli/text.h"
#include "plugin/workersetup.h"

#include <QStringList>

namespace {

constexpr char kAnswer[] = "SELECT 1";

} // namespace

PluginView::PluginView() = default;

PluginView::~PluginView()
{
    const QString name = m_database.connectionName();
    m_worker.reset();
    m_sql.reset();
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

bool PluginView::open(const QSqlDatabase &site, const Configuration &configuration)
{
    if (!connect(site))
        return false;
    configureWorker(*m_worker, configuration);
    m_sql.emplace(m_database);
    return m_sql->refuseWriting() && load();
}

bool PluginView::connect(const QSqlDatabase &site)
{
    const QStringList before = QSqlDatabase::connectionNames();
    m_worker = std::make_unique<MHRWorker>();
    m_worker->setTepDb(site);
    const QStringList after = QSqlDatabase::connectionNames();
    for (const QString &name : after) {
        if (!before.contains(name))
            m_database = QSqlDatabase::database(name, false);
    }
    // A worker reuses the connection that an earlier worker of this process has left.
    if (!m_database.isValid())
        m_error = Text::tr("The plugin already has a connection to another database");
    return m_database.isValid() && m_worker->dbCheckOpen();
}

bool PluginView::load()
{
    m_worker->dbLoadPeople();
    m_worker->dbLoadBranches();
    m_worker->dbCheckDovolenkaFond(MHRWorker::kVacationIid);
    return errorString().isEmpty();
}

QString PluginView::errorString() const
{
    QStringList errors{m_error, m_log.problems(), m_sql ? m_sql->errorString() : QString()};
    errors.removeAll(QString());
    return errors.join(QStringLiteral("; "));
}

bool PluginView::isConnected() const
{
    return SqlSession(m_database).run(QLatin1String(kAnswer));
}
