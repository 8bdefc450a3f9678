#pragma once

#include "mirovahrctl/report/reportwriter.h"

#include <QString>
#include <QVector>

class ComparedPeople;
struct ExportDifferences;

/// The text of a field as people read it: a date without its time, everything else as it is.
QString shownValue(int field, const QString &text);

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
