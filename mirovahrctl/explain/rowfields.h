#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

class MirovaRonRecord;

/// One of the fields that the plugin compares with a row of `people`.
struct RowField {
    QString name; ///< for people
    QVariant exported; ///< the value from the export, a number or a text (also for a day)
    QVariant held; ///< the value in the row, likewise
    bool differs = false;
};

/// The fields that the plugin compares, in its order. \a updated is the record of the export with
/// its relationship state, \a known the row as the plugin reads it.
QVector<RowField> compareRowFields(const MirovaRonRecord &updated, const MirovaRonRecord &known);
