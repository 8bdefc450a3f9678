#pragma once

#include <QString>
#include <QStringList>

/// The language of everything that mirovahrctl writes for people: its texts (cli/text.h), numbers
/// and dates. English until use() is called.
namespace Language {

/// What use() takes: "cs", "en" and "sk".
QStringList codes();

/// The language of the locale, by the first of LC_ALL, LC_MESSAGES and LANG that is set; English
/// when it is none of codes().
QString ofLocale();

/// From now on everything is in this language.
void use(const QString &code);

/// The language in use.
QString code();
bool isEnglish();

/// A count as Text::tr() takes it for plural forms. The largest is that of an int.
int count(qint64 number);

/// A number as people read it: "12345" in English, "12 345" in Slovak.
QString number(qint64 number);
/// A number with so many digits after the decimal point, or comma.
QString number(double number, int digits);

} // namespace Language
