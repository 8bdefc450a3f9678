#include "worker/mirovaronrecord.h"

#include "db/placeholders.h"

#include <QLocale>

#include <limits>
#include <tuple>

namespace {

const QLatin1String kShortText("%1.%2 %3 %4 %5 %6 (T: %7) N-V: %8 - %9 TPP: %10  K: %11  DOV: %12, "
                               "S: %13");

const QLatin1String kLongText("%1.%2 %3 %4 (S: %5, K: %6 from %7) N-V: %8 - %9; ES: %10, RS: %11 - "
                              "%12 '%13' TPP: %14  DOV: %15 NOC: %16");

/// A date as the system locale writes it in short, an invalid one as an empty text.
QString localDate(const QDate &date)
{
    return date.isValid() ? QLocale::system().toString(date, QLocale::ShortFormat) : QString();
}

/// All fields, in the order in which they are compared.
auto fields(const MirovaRonRecord &r)
{
    return std::tie(r.osobniCislo, r.poradoveCisloPP, r.titul, r.jmeno, r.prijmeni, r.titulZa,
                    r.telefon, r.datumNastupu, r.datumVystupu, r.stredisko, r.strediskoPopis,
                    r.kalendar, r.kalendarPlatnostOd, r.typPracovnihoPomeru, r.stavPracovnihoPomeru,
                    r.evidencniStav, r.rsFrom, r.rsTo, r.rsText, r.dovolenaZustatek,
                    r.nadrizenyOsobniCislo);
}

QString shortText(const MirovaRonRecord &r)
{
    return Placeholders::filled(
        kShortText,
        {QString::number(r.osobniCislo), QString::number(r.poradoveCisloPP), r.titul, r.jmeno,
         r.prijmeni, r.titulZa, r.telefon, localDate(r.datumNastupu), localDate(r.datumVystupu),
         QString::number(r.typPracovnihoPomeru), QString::number(r.kalendar),
         QString::number(r.dovolenaZustatek), QString::number(r.stredisko)});
}

/// The surname comes before the first name here, the reverse of the short text.
QString longText(const MirovaRonRecord &r)
{
    return Placeholders::filled(
        kLongText,
        {QString::number(r.osobniCislo), QString::number(r.poradoveCisloPP), r.prijmeni, r.jmeno,
         QString::number(r.stredisko), QString::number(r.kalendar), localDate(r.kalendarPlatnostOd),
         localDate(r.datumNastupu), localDate(r.datumVystupu), QString::number(r.evidencniStav),
         localDate(r.rsFrom), localDate(r.rsTo), r.rsText, QString::number(r.typPracovnihoPomeru),
         QString::number(r.dovolenaZustatek), QString::number(r.nadrizenyOsobniCislo)});
}

} // namespace

quint32 MirovaRonRecord::getPid() const
{
    constexpr quint64 kMax = std::numeric_limits<quint32>::max();
    quint64 pid = osobniCislo;
    quint32 rest = poradoveCisloPP;
    do {
        pid *= 10;
        rest /= 10;
    } while (rest != 0 && pid <= kMax);
    pid += poradoveCisloPP;
    return pid <= kMax ? static_cast<quint32>(pid) : 0;
}

QString MirovaRonRecord::getPamId() const
{
    return QString::number(osobniCislo) + QLatin1Char('.') + QString::number(poradoveCisloPP);
}

QString MirovaRonRecord::getString(bool shortForm) const
{
    return shortForm ? shortText(*this) : longText(*this);
}

bool operator==(const MirovaRonRecord &a, const MirovaRonRecord &b)
{
    return fields(a) == fields(b);
}

bool operator!=(const MirovaRonRecord &a, const MirovaRonRecord &b)
{
    return !(a == b);
}
