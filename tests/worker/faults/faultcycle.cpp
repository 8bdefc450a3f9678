#include "tests/worker/faults/faultcycle.h"

#include "tests/worker/support/middayzone.h"
#include "tests/worker/support/sampleexport.h"

#include <QRegularExpression>

using namespace SampleExport;

namespace {

/// The tables that a synchronisation writes.
const QStringList kWritten = {"people",      "people_pam",   "atten",      "brape",
                              "groups_plan", "groups_month", "funds_move", "admins_people",
                              "people_term", "term",         "term_sync",  "vars"};

/// Seconds in which a healthy server answers on a busy machine, too.
constexpr char kLimits[] =
    ";MYSQL_OPT_CONNECT_TIMEOUT=2;MYSQL_OPT_READ_TIMEOUT=2;MYSQL_OPT_WRITE_TIMEOUT=2";

QDate today()
{
    return QDate::currentDate();
}

QString day(const QDate &date)
{
    return QString::number(localMidnight(date));
}

} // namespace

bool FaultCycle::start()
{
    // Committed changes survive a crash of the server. Its general log is not needed.
    if (!m_db.start({"--innodb-flush-log-at-trx-commit=2", "--general-log=0"}))
        return false;
    prepare(m_db.server().socketPath());
    return !QTest::currentTestFailed();
}

bool FaultCycle::startWith(PrivateMariaDb &server, const QString &socketPath)
{
    if (!m_db.attach(server))
        return false;
    prepare(socketPath);
    return !QTest::currentTestFailed();
}

void FaultCycle::prepare(const QString &socketPath)
{
    m_proxy = std::make_unique<MySqlProxy>(socketPath);
    m_server = m_db.pluginConnection();
    m_server.setConnectOptions("UNIX_SOCKET=" + m_proxy->socketPath());
    m_impatient = m_db.pluginConnection();
    m_impatient.setConnectOptions(m_server.connectOptions() + kLimits);
    m_changes = std::make_unique<StateChanges>(m_db);

    // Attendance is calculated up to yesterday, and uids have five digits from here on.
    const QString yesterday = day(today().addDays(-1));
    m_db.run("UPDATE people SET lastCalc = " + yesterday + " WHERE uid <= 6");
    m_db.run("INSERT INTO atten (uid, `date`, ok) VALUES (4, " + yesterday + ", 1)");
    m_db.run("ALTER TABLE people AUTO_INCREMENT = 70000");
    copyTables();
}

void FaultCycle::copyTables()
{
    m_db.run("CREATE DATABASE beginning");
    for (const QString &table : kWritten)
        m_db.run("CREATE TABLE beginning." + table + " SELECT * FROM " + table);
    m_db.run("CREATE TABLE beginning.weight (n INT)");
}

QVector<ExportRow> FaultCycle::lines() const
{
    return {
        newcomer(m_newNumber).with(&ExportRow::nadrizenyOsobniCislo, 1002),
        maria().with(&ExportRow::evidencniStav, 22).with(&ExportRow::dovolenaZustatek, "21.5"),
        jana()
            .with(&ExportRow::prijmeni, "Malá")
            .with(&ExportRow::dovolenaZustatek, "15.25")
            .with(&ExportRow::nadrizenyOsobniCislo, 1002),
        jan()
            .with(&ExportRow::stredisko, 130)
            .with(&ExportRow::strediskoPopis, "Predajňa")
            .with(&ExportRow::kalendar, 3)
            .with(&ExportRow::kalendarPlatnostOd, QDate(2025, 3, 1)),
    };
}

bool FaultCycle::begin()
{
    if (!m_proxy->waitUntilIdle())
        return false;
    ++m_newNumber;
    m_db.run("BEGIN");
    for (const QString &table : kWritten) {
        m_db.run("DELETE FROM " + table);
        m_db.run("INSERT INTO " + table + " SELECT * FROM beginning." + table);
    }
    m_db.run("COMMIT");
    m_changes->start();
    repeat();
    return true;
}

void FaultCycle::repeat()
{
    m_export.write(lines());
    m_db.run("UPDATE vars SET value = '1' WHERE name = 'YAV.MHRWorker.forceSync'");
}

DatabaseState FaultCycle::state()
{
    DatabaseState state = m_changes->state();
    for (TableRows &rows : state) {
        for (QStringList &row : rows) {
            for (QString &cell : row)
                cell = plain(cell);
        }
    }
    return state;
}

QString FaultCycle::plain(QString text) const
{
    static const QRegularExpression newUid("\\b7\\d{4}\\b");
    return text.replace(newPid(), "<pid>")
        .replace(QString::number(m_newNumber), "<number>")
        .replace(newUid, "<uid>");
}
