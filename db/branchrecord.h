#pragma once

#include <QString>
#include <QtGlobal>

/// One branch: one row of `branches`.
///
/// Working hours go by weekday, 1 to 7; a day whose begin and end are both 0 has none.
struct BranchRecord {
    quint16 bid = 0; ///< the branch's id, 0 while it is not stored
    quint32 number = 0; ///< the HR system's branch number, 0 for none
    QString name; ///< must not be empty for an insert
    QString address;
    QString note;
    quint16 wh1b = 0;
    quint16 wh1e = 0;
    quint16 wh2b = 0;
    quint16 wh2e = 0;
    quint16 wh3b = 0;
    quint16 wh3e = 0;
    quint16 wh4b = 0;
    quint16 wh4e = 0;
    quint16 wh5b = 0;
    quint16 wh5e = 0;
    quint16 wh6b = 0;
    quint16 wh6e = 0;
    quint16 wh7b = 0;
    quint16 wh7e = 0;
    quint32 mgid = 0; ///< master group, 0 for none
};
