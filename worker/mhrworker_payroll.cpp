// The payroll export: the selection of people, and the settings that a person is bound to.

#include "worker/mhrworker.h"

#include "db/placeholders.h"
#include "db/tepdbsettings.h"
#include "worker/sqlreport.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringBuilder>
#include <QVariant>

namespace {

const QLatin1String kActiveExports("exportPam.%.active");

const QLatin1String kSelectUidForPam("SELECT uid FROM people WHERE pid=%1");

const QLatin1String kInsertIntoPam("INSERT INTO people_pam (uid, id) VALUES(%1, %2)");
const QLatin1String kOnDuplicatePam(" ON DUPLICATE KEY UPDATE id=VALUES(id)");

constexpr QLatin1Char kComma(',');

/// True when a list such as "1,2" has an empty entry, at an end or in between.
bool holdsEmptyEntry(const QString &list)
{
    // No early exit: the compiler vectorises a loop that always runs to the end.
    const ushort comma = kComma.unicode();
    const ushort *text = list.utf16();
    int doubled = 0;
    for (int i = 1; i < list.size(); ++i)
        doubled += (text[i - 1] == comma) & (text[i] == comma);
    return doubled != 0 || list.startsWith(kComma) || list.endsWith(kComma);
}

QString withoutEmptyEntries(const QString &list)
{
    return holdsEmptyEntry(list) ? list.split(kComma, Qt::SkipEmptyParts).join(kComma) : list;
}

/// True when the entry is in a list that has no empty ones.
bool holdsEntry(const QString &list, const QString &entry)
{
    return list == entry || list.startsWith(entry % kComma) || list.endsWith(kComma % entry)
        || list.contains(kComma % entry % kComma);
}

} // namespace

bool MHRWorker::addPersonIntoPam(unsigned int pid)
{
    if (m_debugLevel >= 2)
        qDebug("MHRWorker::addPersonIntoPam(%u)", pid);
    if (pid == 0)
        return false;

    // With none, or with several, nobody knows which one the person belongs to.
    const QStringList exports = m_settings->variableGetMultiple(QString(kActiveExports)).keys();
    if (exports.size() != 1)
        return false;

    QString selectionKey = exports.first();
    selectionKey.replace(QLatin1String("active"), QLatin1String("selPeople"));
    const QString selection = m_settings->variableGet(selectionKey, QVariant()).toString();
    // Searched as text, not split: it may name everybody, and each new person is looked up in it.
    const QString list = withoutEmptyEntries(selection);
    const QString entry = QString::number(pid);
    if (holdsEntry(list, entry))
        return true;
    return m_settings->variableSet(selectionKey, list.isEmpty() ? entry : list % kComma % entry);
}

bool MHRWorker::dbAddPersonIntoPam(unsigned int pid, unsigned int pamSettingsID)
{
    if (m_debugLevel >= 1)
        qDebug("MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u)", pid, pamSettingsID);
    if (m_testMode) {
        if (m_debugLevel >= 1) {
            qWarning("MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u) - Testing mode is "
                     "active, person not really add into PaM!",
                     pid, pamSettingsID);
        }
        return true;
    }

    const quint32 uid = SqlReport::findNumber(m_db, Placeholders::filled(kSelectUidForPam, pid));
    if (uid == 0) {
        if (m_debugLevel >= 1) {
            qWarning("MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u) - Unique person "
                     "ID ([people].uid) not found!",
                     pid, pamSettingsID);
        }
        return false;
    }

    QSqlQuery query(m_db);
    if (!query.exec(Placeholders::filled(kInsertIntoPam, uid, pamSettingsID) + kOnDuplicatePam)) {
        qCritical("MHRWorker::dbAddPersonIntoPam(pid: %u, pamSettingsID: %u) - SQL ERROR: %s", pid,
                  pamSettingsID, qUtf8Printable(query.lastError().text()));
        return false;
    }
    return query.lastInsertId().toLongLong() >= 1 || query.numRowsAffected() > 0;
}
