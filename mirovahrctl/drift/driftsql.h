#pragma once

#include "mirovahrctl/drift/driftrows.h"

#include <QDate>
#include <QString>

class QIODevice;

/// The statements that write what the plugin does not write again. Each changes something only
/// where the database still is as it was found; all of them are one transaction.
namespace DriftSql {

/// A person as it was found, by both ids.
struct Person {
    quint32 uid = 0;
    quint32 pid = 0;
};

/// The employment type \a found becomes \a type.
QString employmentType(Person person, uint found, uint type);

/// The administrator \a aid receives the person's requests, and no other one does. \a found: those
/// who do (aid), in order.
QString supervisor(Person person, quint32 aid, const QVector<quint32> &found);

/// The person is bound to these settings of the payroll export.
QString payrollBinding(Person person, uint settings);

/// The person joins the selection with this key in `vars`.
QString payrollSelection(Person person, const QString &key);

/// A member of the branch \a bid gets onto the terminal, and the terminal fetches the person.
QString terminal(quint32 uid, quint32 bid, quint32 tid);

/// A member of the branch \a bid gets to the administrator.
QString administrator(quint32 uid, quint32 bid, quint32 aid);

/// The months get their planned groups; then attendance from \a since on, if that is past, is
/// calculated again.
QString months(quint32 uid, const QVector<DriftRows::Month> &months, const QDate &since);

/// The terminal is marked as having people to fetch.
QString terminalMark(quint32 tid);

/// Writes statements with what must stand around them. \a about: whose database and export these
/// are, one line.
void write(const QString &about, const QString &statements, QIODevice &out);

} // namespace DriftSql
