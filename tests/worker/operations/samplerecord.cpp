#include "tests/worker/operations/samplerecord.h"

MirovaRonRecord fullRecord()
{
    MirovaRonRecord r;
    r.osobniCislo = 1234;
    r.poradoveCisloPP = 2;
    r.titul = "Ing.";
    r.jmeno = "Jana";
    r.prijmeni = "Nováková";
    r.titulZa = "PhD.";
    r.telefon = "555123456";
    r.datumNastupu = QDate(2019, 4, 1);
    r.datumVystupu = QDate(2030, 12, 31);
    r.stredisko = 120;
    r.strediskoPopis = "Sklad";
    r.kalendar = 3;
    r.kalendarPlatnostOd = QDate(2020, 5, 1);
    r.typPracovnihoPomeru = 11;
    r.stavPracovnihoPomeru = 1;
    r.evidencniStav = 21;
    r.rsFrom = QDate(2021, 6, 1);
    r.rsTo = QDate(2021, 7, 1);
    r.rsText = "materská dovolenka";
    r.dovolenaZustatek = 12.5;
    r.nadrizenyOsobniCislo = 1001;
    return r;
}
