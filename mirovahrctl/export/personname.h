#pragma once

#include <QString>
#include <QStringList>

class MirovaRonRecord;

/// How people speak of a person: "1234.1 Jana Nováková".
QString personName(const MirovaRonRecord &record);

/// The words of a name, so that those of two spellings can be compared: without accents, capital
/// letters and whatever is no letter or digit.
QStringList nameWords(const QString &name);
