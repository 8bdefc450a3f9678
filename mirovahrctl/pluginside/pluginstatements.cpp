#include "mirovahrctl/pluginside/pluginstatements.h"

#include "db/branchesrepository.h"
#include "db/groupsplanrepo.h"
#include "mirovahrctl/pluginside/pluginlog.h"
#include "mirovahrctl/pluginside/statementtap.h"
#include "worker/mhrworker.h"

#include <QDate>
#include <QRegularExpression>

namespace {

using Sent = PluginStatement::Sent;

/// Any administrator, group, or personal number: no statement finds more or fewer rows by another.
constexpr unsigned int kAnyId = 1;

/// The plugin's operations for one person, one after the other. They follow what the tap answers;
/// none may use the cache of uids, which would keep that for a real worker of this process.
class TappedPlugin {
public:
    explicit TappedPlugin(const StatementValues &values)
        : m_values(values)
        , m_plan(nullptr)
        , m_branches(nullptr, true, false)
    {
        m_tap.setAnswer({values.uid});
        m_worker.setTepDb(m_tap.database());
        m_worker.init();
        m_worker.dbCheckOpen();
        m_plan.setAutoUpdateGroupsMonth(true);
        m_plan.setDB(m_tap.database());
        m_branches.setDB(m_tap.database());
    }

    QVector<PluginStatement> run()
    {
        correctBalance();
        createPerson();
        m_worker.dbUpdatePerson(record(), true);
        m_worker.dbGetUidByPid(m_values.pid);
        assignSupervisor();
        place();
        m_worker.dbChangeLastCalc(m_values.uid, m_today);
        keep(Sent::ForEachPerson);
        m_branches.addPeopleToBranch(static_cast<ushort>(m_values.bid),
                                     QString::number(m_values.uid));
        keep(Sent::ForEachBranch);
        return m_statements;
    }

private:
    MirovaRonRecord record() const
    {
        MirovaRonRecord record;
        record.osobniCislo = m_values.pid / 10;
        record.poradoveCisloPP = m_values.pid % 10;
        record.rsFrom = m_today;
        return record;
    }

    void correctBalance()
    {
        if (m_values.fid == 0)
            return;
        m_tap.setAnswer({m_values.fid});
        m_worker.dbCheckDovolenkaFond(MHRWorker::kVacationIid);
        m_tap.takeStatements(); // looking up the fund, once in a synchronisation
        m_tap.setAnswer({m_values.uid, 1}); // calculated long ago
        m_worker.dbCheckFundMove(m_values.pid);
        unsigned int uid = 0;
        m_worker.dbCheckAttendance(m_values.pid, uid);
        bool ok = false;
        m_worker.loadFundStatusAndMove3(m_values.pid, ok);
        m_worker.writeFundMove3(m_values.uid, 1);
    }

    void createPerson()
    {
        m_tap.setAnswer({QStringLiteral("exportPam.1.active"), QString()});
        m_worker.dbAddPerson(record());
        m_tap.setAnswer({m_values.uid});
        m_worker.dbAddPersonIntoPam(m_values.pid, kAnyId);
    }

    void assignSupervisor()
    {
        m_worker.dbGetAidByOsCis(kAnyId);
        m_worker.dbResetAdminPeopleRequest(kAnyId, m_values.uid);
        m_worker.dbSetAdminPeopleRequest(kAnyId, m_values.uid);
    }

    void place()
    {
        const quint32 month = GroupsPlanRepo::monthFromDate(m_today);
        m_worker.dbCheckPersonInBranch(m_values.pid, m_values.bid);
        m_worker.dbGetGroupIdByCalendar(m_values.bid, m_values.calendar);
        m_worker.dbCheckGroupsPlan(kAnyId, m_values.uid, month);
        m_plan.add({kAnyId, m_values.uid, month});
        m_plan.getCurrentGid(m_values.uid, month, false);
    }

    void keep(Sent sent)
    {
        const QStringList statements = m_tap.takeStatements();
        for (const QString &statement : statements) {
            const QString query = queryOf(statement);
            if (!query.isEmpty())
                m_statements.append({query, sent});
        }
    }

    const StatementValues m_values;
    const QDate m_today = QDate::currentDate();
    const PluginLog m_log; // keeps from the console what the plugin logs
    StatementTap m_tap;
    MHRWorker m_worker;
    GroupsPlanRepo m_plan;
    BranchesRepository m_branches;
    QVector<PluginStatement> m_statements;
};

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QLatin1String(text),
                              QRegularExpression::CaseInsensitiveOption
                                  | QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

QVector<PluginStatement> pluginStatements(const StatementValues &values)
{
    return TappedPlugin(values).run();
}

QString queryOf(const QString &statement)
{
    static const QRegularExpression query = pattern("^SELECT .*[^;]");
    static const QRegularExpression update = pattern("^UPDATE (\\S+) SET .*? WHERE (.*[^;])");
    static const QRegularExpression insert =
        pattern("^INSERT .*?\\b(SELECT .*?[^;]);?( ON DUPLICATE KEY .*)?$");
    const QRegularExpressionMatch queried = query.match(statement);
    if (queried.hasMatch())
        return queried.captured();
    const QRegularExpressionMatch updated = update.match(statement);
    if (updated.hasMatch())
        return QStringLiteral("SELECT 1 FROM %1 WHERE %2")
            .arg(updated.captured(1), updated.captured(2));
    return insert.match(statement).captured(1);
}
