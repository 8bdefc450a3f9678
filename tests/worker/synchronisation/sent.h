#pragma once

#include "tests/support/exportfile.h"

#include <QDate>
#include <QStringList>
#include <QVector>

/// The statements of a synchronisation as the server logs them, written out here once for all
/// tests. The vacation fund is fund 2, as in the sample data.
namespace Sent {

// The frame of a tick that synchronises -----------------------------------------------------------

QString readForce();
QString people();
QString branches();
QString fund();
/// The four above: what comes before the first record.
QStringList begin();
QStringList resetForce();

// A record ----------------------------------------------------------------------------------------

QString movesOfToday(uint pid);
QString calculation(uint pid);
QString openDays(int uid);
/// The three above: both checks of a person whose attendance is calculated.
QStringList fundChecks(uint pid, int uid);

/// Values of the row in `people` that do not come from the line.
struct PersonValues {
    QString type = QStringLiteral("1");
    QString bid = QStringLiteral("1");
    QString rsBegin = QStringLiteral("NULL");
    QString rsEnd = QStringLiteral("NULL");
    QString rsText;
};

QString insertPerson(const ExportRow &line, const PersonValues &values = {});
/// The selection of the one payroll export of the sample, with one more person.
QStringList payrollSelection(uint pid);
QStringList payrollBinding(uint pid, int uid, int payrollId);

QString updatePerson(const ExportRow &line, const PersonValues &values = {});
/// With a new relationship state, which sets the last calculation.
QString updatePersonAndLastCalc(const ExportRow &line, const PersonValues &values,
                                const QDate &lastCalc);
/// What follows an update that changed the row.
QStringList notifyTerminals(uint pid, int uid);

QString sumBeforeMonth(uint pid);
QString sumOfCorrections(uint pid);
QStringList balance(uint pid);
QString correction(int uid, int value);

QString findAdmin(uint personalNumber);
QStringList supervisor(int aid, int uid);

QString findUid(uint pid);
QString membership(uint pid, int bid);
QString group(int bid, int calendar);
QString plannedGroup(int gid, int uid, int since);
QString planGroup(int gid, int uid, int since);
QString updateMonths(int uid, int since);
QStringList recalculation(int uid, const QDate &from);
/// From the first day of the previous month on.
QStringList recalculation(int uid);

// The end of the cycle ----------------------------------------------------------------------------

QString joinBranch(int bid, const QString &uids);
/// How new members of a branch reach its terminals and administrators.
QStringList propagation(int bid, const QStringList &uids, const QVector<int> &tids,
                        const QVector<int> &aids);

} // namespace Sent
