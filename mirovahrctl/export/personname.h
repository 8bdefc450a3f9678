#pragma once

#include <QString>
#include <QStringList>

class MirovaRonRecord;

/// Payroll id and name, for people: "1234.1 Jana Nováková".
QString personName(const MirovaRonRecord &record);

/// The words of a name, normalised so that two spellings can be compared: without accents, in lower
/// case, letters and digits only.
QStringList nameWords(const QString &name);
