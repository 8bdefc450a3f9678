#pragma once

#include "mirovahrctl/site/backslash.h"

#include <QString>
#include <QVariant>
#include <QVector>

class MirovaRonRecord;

/// One of the fields that the plugin compares with a row of `people`.
struct RowField {
    QString name; ///< for people
    /// The value from the export, a number or a text (also for a day); a text as HR meant it.
    QVariant exported;
    QVariant held; ///< the value in the row, likewise
    bool differs = false; ///< to the plugin, which compares a text as it is written

    /// Whether only the way in which the text is written makes the difference.
    bool differsInWriting() const { return differs && exported == held; }
};

/// The fields that the plugin compares, in its order. \a updated is the record of the export with
/// its relationship state, \a known the row as the plugin reads it; \a backslash: what it is to the
/// server.
QVector<RowField> compareRowFields(const MirovaRonRecord &updated, const MirovaRonRecord &known,
                                   Backslash backslash);
