#pragma once

#include "worker/mirovaronrecord.h"

#include <tuple>

/// How a record of the export is compared with the database's view of the same person. Pure
/// functions.
namespace RecordComparison {

/// The fields that a row of `people` holds. The description of the cost centre, the start of the
/// calendar, the codes and the balance are not among them.
inline auto rowFields(const MirovaRonRecord &r)
{
    return std::tie(r.osobniCislo, r.poradoveCisloPP, r.titul, r.jmeno, r.prijmeni, r.titulZa,
                    r.telefon, r.datumNastupu, r.datumVystupu, r.kalendar, r.stredisko, r.rsFrom,
                    r.rsTo, r.rsText);
}

/// True when the database's view of a person can be compared: both numbers and any name are there.
bool isComplete(const MirovaRonRecord &known);

/// True when the record has another calendar, start of the calendar or cost centre than the
/// database's view. That view has no start of the calendar, so the first look at a record that has
/// one always finds a difference.
bool movesElsewhere(const MirovaRonRecord &rec, const MirovaRonRecord &known);

} // namespace RecordComparison
