#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One text of a file of translations.
struct Translation {
    QString source; ///< English, as in the code
    QString meaning; ///< what tells it from a text that is the same in English; mostly empty
    bool isPlural = false;
    bool isFinished = false;
    QStringList forms; ///< one, or one for each plural form
};

/// The texts of a file of translations, in their order. Ends the test program when the file cannot
/// be read.
QVector<Translation> readTranslations(const QString &path);
