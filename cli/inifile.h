#pragma once

#include <QString>
#include <QVector>

/// One "key=value" line of an INI file, as it is written there.
struct IniLine {
    qint64 number = 0; ///< counted from 1
    QString key; ///< with its group in front, as in "MES/21"
    QString value; ///< trimmed; quotation marks and escapes as written
};

/// The lines of an INI file, for what QSettings does not report: line numbers, repeated keys,
/// values before they are parsed. Empty when the file cannot be read.
QVector<IniLine> readIniLines(const QString &path);

/// Whether the value contains this character outside quotation marks.
bool hasUnquoted(const QString &value, QChar c);
