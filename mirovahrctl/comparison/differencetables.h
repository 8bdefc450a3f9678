#pragma once

#include "mirovahrctl/report/reportwriter.h"

#include <QString>
#include <QVector>

class ComparedPeople;
struct ExportDifferences;

/// The texts of a field of one person; empty for the export that the person is missing from.
struct FieldTexts {
    QString before;
    QString now;
};

FieldTexts fieldTexts(const ComparedPeople &people, int person, int field);

/// The texts as people read them: a date without its time, a balance in the form of the language,
/// everything else as it is. Beside a balance that is misread the other stays as it is, too: in
/// most languages the comma that is wrong in an export is right.
FieldTexts shownTexts(int field, const FieldTexts &texts);

/// The fields in which something differs, and how many values of each.
Table fieldTable(const ExportDifferences &differences);

/// Writes lists of people into a report. Each is a sentence and a table; a long one is cut.
class DifferenceTables {
public:
    /// \a most: how many people a list shows at most.
    DifferenceTables(const ComparedPeople &people, ReportWriter &report, int most)
        : m_people(people)
        , m_report(report)
        , m_most(most)
    {
    }

    /// Who they are and their cost centre. \a id of the table; an empty list writes nothing.
    void people(const char *id, const QString &what, const QVector<int> &list);
    /// Who they are, and both cost centres.
    void moving(const QVector<int> &list);
    /// Who they are, and the values of one field in both exports.
    void values(const QString &id, const QString &what, const QVector<int> &list, int field);

private:
    void sentence(const QString &what, int count);
    QVector<int> shown(const QVector<int> &list) const { return list.mid(0, m_most); }

    const ComparedPeople &m_people;
    ReportWriter &m_report;
    const int m_most;
};
