#include "tests/worker/support/sampleexport.h"

namespace {

struct Person {
    int personalNumber;
    const char *title;
    const char *name;
    const char *surname;
    const char *titleAfter;
    const char *phone;
    QDate begin;
};

struct Place {
    int branch;
    const char *description;
    int calendar;
    QDate since;
};

ExportRow line(const Person &person, const Place &place, const char *balance)
{
    return ExportRow()
        .with(&ExportRow::osobniCislo, person.personalNumber)
        .with(&ExportRow::titul, person.title)
        .with(&ExportRow::jmeno, person.name)
        .with(&ExportRow::prijmeni, person.surname)
        .with(&ExportRow::titulZa, person.titleAfter)
        .with(&ExportRow::telefon, person.phone)
        .with(&ExportRow::datumNastupu, person.begin)
        .with(&ExportRow::stredisko, place.branch)
        .with(&ExportRow::strediskoPopis, place.description)
        .with(&ExportRow::kalendar, place.calendar)
        .with(&ExportRow::kalendarPlatnostOd, place.since)
        .with(&ExportRow::dovolenaZustatek, balance);
}

} // namespace

ExportRow SampleExport::maria()
{
    return line({1001, "Ing.", "Mária", "Kováčová", "", "0905000001", QDate(2015, 2, 1)},
                {120, "Sklad", 1, QDate(2015, 2, 1)}, "20");
}

ExportRow SampleExport::peter()
{
    return line({1002, "", "Peter", "Horváth", "MBA", "0905000002", QDate(2016, 9, 1)},
                {130, "Predajňa", 1, QDate(2016, 9, 1)}, "0");
}

ExportRow SampleExport::zuzana()
{
    return line({1003, "Mgr.", "Zuzana", "Tóthová", "", "0905000003", QDate(2018, 1, 1)},
                {140, "Administratíva", 1, QDate(2018, 1, 1)}, "0");
}

ExportRow SampleExport::jana()
{
    return line({1234, "Ing.", "Jana", "Nováková", "", "555123456", QDate(2019, 4, 1)},
                {120, "Sklad", 3, QDate(2023, 1, 1)}, "17.5");
}

ExportRow SampleExport::jan()
{
    return line({1235, "", "Ján", "Szabó", "", "", QDate(2020, 6, 15)},
                {120, "Sklad", 2, QDate(2020, 6, 1)}, "0");
}

ExportRow SampleExport::tomas()
{
    return line({2001, "", "Tomáš", "Baláž", "", "", QDate(2024, 7, 1)}, {0, "", 0, QDate()}, "0")
        .with(&ExportRow::poradoveCisloPP, 2)
        .with(&ExportRow::typPracovnihoPomeru, 51);
}

ExportRow SampleExport::newcomer(int personalNumber)
{
    return line({personalNumber, "", "Eva", "Malá", "", "", QDate::currentDate().addDays(-10)},
                {120, "Sklad", 1, QDate::currentDate().addDays(1)}, "0");
}
