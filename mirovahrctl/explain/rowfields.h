#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

class MirovaRonRecord;

/// One of the fields that the plugin compares with a row of `people`.
struct RowField {
    QString name; ///< for people
    QVariant exported; ///< what the export makes of it: a number or a text, also for a day
    QVariant held; ///< what the row holds, likewise
    bool differs = false;
};

/// The fields of the plugin's comparison, in its order. \a updated is the record of the export with
/// its relationship state, \a known the plugin's view of the row.
QVector<RowField> compareRowFields(const MirovaRonRecord &updated, const MirovaRonRecord &known);
