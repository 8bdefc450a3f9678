#pragma once

#include <QString>
#include <QtGlobal>

/// One planned calendar group of a person: one row of `groups_plan`.
struct GroupsPlanRecord {
    quint32 gid = 0; ///< calendar group
    quint32 uid = 0; ///< person
    quint32 since = 0; ///< first month of validity as yyyyMM

    /// The record for the log, for example "G: 4, U: 17, S: 202403".
    QString getString() const
    {
        return QStringLiteral("G: %1, U: %2, S: %3").arg(gid).arg(uid).arg(since);
    }
};
