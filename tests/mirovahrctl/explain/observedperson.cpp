#include "tests/mirovahrctl/explain/observedperson.h"

#include <QDateTime>
#include <QRegularExpression>

#include <optional>

namespace {

const char kNone[] = "none";

bool has(const QStringList &part, const QString &text)
{
    return !part.filter(text).isEmpty();
}

/// The first number behind a text of the log; -1 when the text is not there.
int numberBehind(const QStringList &part, const QString &text)
{
    const QStringList lines = part.filter(text);
    static const QRegularExpression number("-?\\d+");
    return lines.isEmpty() ? -1 : number.match(lines.first().section(text, 1)).captured().toInt();
}

/// What the plugin has done for a record that it handles.
bool isHandled(const QStringList &part)
{
    for (const char *text : {"MHRWorker::dbAddPerson(", "MHRWorker::dbUpdatePerson(",
                             "MHRWorker::loadFundStatusAndMove3(", "MHRWorker::processNadOsCis("}) {
        if (has(part, text))
            return true;
    }
    return false;
}

QDate dayOf(qint64 midnight)
{
    return QDateTime::fromSecsSinceEpoch(midnight).date();
}

} // namespace

ObservedPerson::ObservedPerson(TestDatabase &database, quint32 pid)
    : m_db(database)
    , m_pid(pid)
    , m_before(look())
    , m_exists(m_before.exists)
    , m_isSelected(m_before.isSelected)
{
}

QVector<QStringList> ObservedPerson::parts(const QStringList &log)
{
    QVector<QStringList> parts{{}};
    for (const QString &line : log) {
        if (line.startsWith("D MHRWorker::doSyncRecord("))
            parts += QStringList();
        parts.last() += line;
    }
    return parts;
}

QString ObservedPerson::text(const QString &select)
{
    const QString uid = QStringLiteral("(SELECT uid FROM people WHERE pid = %1)").arg(m_pid);
    return m_db.value(QString(select).replace("%1", uid)).toString();
}

ObservedPerson::State ObservedPerson::look()
{
    State state;
    state.exists = text("SELECT IFNULL(%1, 0)") != "0";
    state.isKnown = m_db.value(QStringLiteral("SELECT COUNT(*) FROM people WHERE status AND "
                                              "REPLACE(pamId, '.', '') = '%1'")
                                   .arg(m_pid))
                        .toInt()
        != 0;
    state.corrected = text("SELECT COUNT(*) FROM funds_move WHERE type = 3 AND fid = 2 AND day = "
                           "midnightFromTs(UNIX_TIMESTAMP()) AND uid = %1")
        != "0";
    state.row = text("SELECT CONCAT_WS('|', pamId, title, name, surname, title2, phone, begin, "
                     "IFNULL(`end`, ''), created, edited, editor, IFNULL(rsBegin, ''), "
                     "IFNULL(rsEnd, ''), rsText, type, IFNULL(did, ''), calendarID, "
                     "IFNULL(bid, ''), status) FROM people WHERE uid = %1");
    state.administrators = text("SELECT GROUP_CONCAT(aid ORDER BY aid) FROM admins_people WHERE "
                                "request AND uid = %1");
    state.branches =
        text("SELECT GROUP_CONCAT(bid ORDER BY bid) FROM brape WHERE uid = %1").split(',');
    state.plan = text("SELECT GROUP_CONCAT(gid, ' ', since ORDER BY since) FROM groups_plan WHERE "
                      "uid = %1");
    state.payrollSettings = text("SELECT id FROM people_pam WHERE uid = %1");
    state.isSelected = m_db.value("SELECT GROUP_CONCAT(value) FROM vars WHERE name LIKE "
                                  "'exportPam.%.selPeople'")
                           .toString()
                           .split(',')
                           .contains(QString::number(m_pid));
    const QStringList openDays =
        text("SELECT GROUP_CONCAT(`date`) FROM atten WHERE uid = %1 AND ok = -1")
            .split(',', Qt::SkipEmptyParts);
    state.openDays = {openDays.cbegin(), openDays.cend()};
    state.lastCalc = text("SELECT lastCalc FROM people WHERE uid = %1").toLongLong();
    return state;
}

void ObservedPerson::see(const QStringList &part, bool isRepetition)
{
    const QString word = person(part);
    m_exists = m_exists || word == "created";
    m_records += QJsonObject{{"person", word},
                             {"payroll", payroll(part)},
                             {"payrollSettings", payrollSettings(part)},
                             {"balance", balance(part, isRepetition)},
                             {"supervisor", supervisor(part)},
                             {"branch", branch(part)},
                             {"calendar", calendar(part)}};
    m_isSelected = m_isSelected || m_records.last().value("payroll") == "joins";
}

QString ObservedPerson::person(const QStringList &part) const
{
    if (has(part, "Testing mode is active, person not really "))
        return "test-mode";
    if (!part.filter(QRegularExpression("^C MHRWorker::db(Add|Update)Person\\(")).isEmpty())
        return "uncertain";
    if (has(part, "D MHRWorker::dbAddPerson("))
        return m_exists ? "merged" : "created";
    if (has(part, "D MHRWorker::dbUpdatePerson("))
        return m_exists ? "updated" : "missed";
    return m_exists ? "unchanged" : "never-created";
}

QString ObservedPerson::payroll(const QStringList &part) const
{
    if (!has(part, "D MHRWorker::addPersonIntoPam(") || has(part, ") - addPersonIntoPam() FAILED!"))
        return kNone;
    return m_isSelected ? "member" : "joins";
}

QString ObservedPerson::payrollSettings(const QStringList &part) const
{
    if (!has(part, "D MHRWorker::dbAddPersonIntoPam(") || has(part, "not really add into PaM!"))
        return kNone;
    return has(part, " - dbAddPersonIntoPam(") ? "kept" : "set";
}

QString ObservedPerson::balance(const QStringList &part, bool isRepetition) const
{
    if (!m_before.isKnown || (isRepetition && !isHandled(part)))
        return kNone;
    if (!has(part, "MHRWorker::dbCheckFundMove("))
        return "no-fund";
    if (has(part, " not writed for uid "))
        return "impossible";
    if (has(part, "MHRWorker::writeFundMove3("))
        return "corrected";
    if (has(part, "MHRWorker::loadFundStatusAndMove3("))
        return "equal";
    return has(part, "): exists") || has(part, "): NO OK") ? "later" : "kept";
}

QString ObservedPerson::supervisor(const QStringList &part) const
{
    if (has(part, "MHRWorker - admin s osobnym cislom "))
        return "unknown";
    if (!has(part, "D MHRWorker::dbSetAdminPeopleRequest("))
        return kNone;
    static const QRegularExpression changed("AdminPeopleRequest\\(.* - affected: [1-9]");
    return part.filter(changed).isEmpty() ? "kept" : "set";
}

QString ObservedPerson::branch(const QStringList &part) const
{
    if (has(part, "W MHRWorker: Branch '"))
        return "unknown";
    const QString check = QStringLiteral("MHRWorker::dbCheckPersonInBranch(%1, ").arg(m_pid);
    if (!has(part, check))
        return kNone;
    if (m_before.branches.contains(QString::number(numberBehind(part, check))))
        return "member";
    return m_exists ? "joins" : kNone;
}

QString ObservedPerson::calendar(const QStringList &part) const
{
    if (has(part, "W MHRWorker: Group ID NOT found"))
        return "unknown";
    if (has(part, "W MHRWorker: can't add record "))
        return kNone;
    if (has(part, "D GroupsPlanRepo::add("))
        return "planned";
    return has(part, "D MHRWorker::dbCheckGroupsPlan(") ? "kept" : kNone;
}

void ObservedPerson::finish(const QStringList &statements)
{
    m_after = look();
    m_recalculation = wholeCalculation(statements);
}

/// The first day from which the statements let attendance be calculated again.
QString ObservedPerson::wholeCalculation(const QStringList &statements)
{
    const QString uid = text("SELECT %1");
    const QRegularExpression state(
        QStringLiteral("^UPDATE people SET .*, lastCalc=(\\d+), .* WHERE pid=%1$").arg(m_pid));
    const QRegularExpression days(
        QStringLiteral("^UPDATE atten SET ok = -1 .* >= (-?\\d+) AND uid =%1$").arg(uid));
    const QRegularExpression back(
        QStringLiteral("^UPDATE people set lastCalc = (-?\\d+), .* AND uid=%1$").arg(uid));
    qint64 lastCalc = m_before.lastCalc;
    std::optional<QDate> first;
    const auto add = [&first](const QDate &day) {
        first = first ? qMin(*first, day) : day;
    };
    for (const QString &statement : statements) {
        const auto number = [&statement](const QRegularExpression &form) -> std::optional<qint64> {
            const auto match = form.match(statement);
            return match.hasMatch() ? std::make_optional(match.captured(1).toLongLong())
                                    : std::nullopt;
        };
        if (const auto day = number(state)) {
            if (lastCalc > *day)
                add(dayOf(*day).addDays(1));
            lastCalc = *day;
        } else if (const auto midnight = number(days)) {
            add(*midnight == 0 ? QDate() : dayOf(*midnight));
        } else if (const auto dayBefore = number(back)) {
            lastCalc = qMin(lastCalc, *dayBefore);
        }
    }
    if (!first)
        return kNone;
    return first->isValid() ? first->toString(Qt::ISODate) : QStringLiteral("all");
}

/// The first of the words that a record has; "none" when none has one.
QString ObservedPerson::weightiest(const char *fact, const QStringList &words) const
{
    for (const QString &word : words) {
        for (const QJsonObject &record : m_records) {
            if (record.value(fact) == word)
                return word;
        }
    }
    return kNone;
}

QString ObservedPerson::wholePerson() const
{
    const QString rest = weightiest("person", {"test-mode", "uncertain", "missed"});
    if (rest != kNone)
        return rest;
    if (!m_before.exists)
        return m_after.exists ? "created" : "never-created";
    if (m_before.row == m_after.row)
        return "unchanged";
    return m_before.isKnown ? "updated" : "merged";
}

QJsonObject ObservedPerson::facts() const
{
    const auto either = [](bool changed, const char *word, const QString &otherwise) {
        return changed ? QString(word) : otherwise;
    };
    const int openedDays = (m_after.openDays - m_before.openDays).size();
    return {
        {"person", wholePerson()},
        {"payroll",
         either(m_before.isSelected != m_after.isSelected, "joins",
                weightiest("payroll", {"member"}))},
        {"payrollSettings",
         either(m_before.payrollSettings != m_after.payrollSettings, "set",
                weightiest("payrollSettings", {"set", "kept"}).replace("set", "kept"))},
        {"balance",
         either(m_before.corrected != m_after.corrected, "corrected",
                weightiest("balance", {"impossible", "later", "equal", "kept", "no-fund"}))},
        {"supervisor",
         either(m_before.administrators != m_after.administrators, "set",
                weightiest("supervisor", {"set", "unknown", "kept"}).replace("set", "kept"))},
        {"branch",
         either(m_before.branches != m_after.branches, "joins",
                weightiest("branch", {"unknown", "member"}))},
        {"calendar",
         either(m_before.plan != m_after.plan, "planned",
                weightiest("calendar", {"planned", "unknown", "kept"}).replace("planned", "kept"))},
        {"recalculation", m_recalculation},
        {"recalculatedDays", openedDays},
        {"lastCalculation",
         m_after.lastCalc == m_before.lastCalc      ? "kept"
             : m_after.lastCalc < m_before.lastCalc ? "back"
                                                    : "forward"}};
}
