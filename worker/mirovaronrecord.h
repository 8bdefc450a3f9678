#pragma once

#include <QDate>
#include <QString>
#include <QVector>

/// One employment relationship of one employee: one line of the HR export.
///
/// A plain value. An invalid date means "not known" or, for an end, "open"; a 0 number "none".
class MirovaRonRecord {
public:
    quint32 osobniCislo = 0; ///< personal number of the employee
    quint32 poradoveCisloPP = 0; ///< sequence number of the relationship of that employee
    QString titul; ///< title before the name
    QString jmeno; ///< first name
    QString prijmeni; ///< surname
    QString titulZa; ///< title after the name
    QString telefon; ///< phone
    QDate datumNastupu; ///< first day of employment
    QDate datumVystupu; ///< last day of employment, invalid while employed
    quint32 stredisko = 0; ///< cost centre, `branches.number` of the attendance database
    QString strediskoPopis; ///< description of the cost centre
    quint32 kalendar = 0; ///< work calendar, `groups.calendarID` of the attendance database
    QDate kalendarPlatnostOd; ///< first day on which the calendar applies
    quint16 typPracovnihoPomeru = 0; ///< employment type code
    quint16 stavPracovnihoPomeru = 0; ///< employment state code; 4 and above: ended
    quint16 evidencniStav = 0; ///< register state code
    QDate rsFrom; ///< first day of the relationship state; derived, not in the export
    QDate rsTo; ///< end of the relationship state, invalid while open; derived
    QString rsText; ///< text of the relationship state; derived
    double dovolenaZustatek = 0.0; ///< remaining vacation in days
    quint32 nadrizenyOsobniCislo = 0; ///< personal number of the supervisor

    /// The person's key in the attendance database (`people.pid`): the decimal digits of
    /// osobniCislo directly followed by those of poradoveCisloPP, read as one number. 0 when that
    /// does not fit 32 bits.
    quint32 getPid() const;

    /// The person's id in the payroll export (`people.pamId`), for example "1234.2".
    QString getPamId() const;

    /// One line for the log: the short form with titles and phone, or the long form with the
    /// relationship state and the supervisor.
    QString getString(bool shortForm) const;
};

/// True when all 21 fields are equal. A balance that is not a number equals nothing.
bool operator==(const MirovaRonRecord &a, const MirovaRonRecord &b);
bool operator!=(const MirovaRonRecord &a, const MirovaRonRecord &b);

Q_DECLARE_TYPEINFO(MirovaRonRecord, Q_MOVABLE_TYPE);
