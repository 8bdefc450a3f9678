#pragma once

#include <QString>
#include <QtGlobal>

/// One branch–attribute–section triple: one row of `bas`.
struct BASData {
    quint32 bid = 0; ///< branch
    quint32 attrid = 0; ///< attribute
    quint32 secid = 0; ///< section

    /// The triple as text, for example "3-12-7".
    QString getString() const { return QStringLiteral("%1-%2-%3").arg(bid).arg(attrid).arg(secid); }
};
