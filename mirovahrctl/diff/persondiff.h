#pragma once

#include <QString>
#include <QVector>

class ComparedPeople;
class ReportWriter;

/// The people whom \a id names: a payroll id such as "1234.1", a personal number, or a pid.
QVector<int> peopleNamed(const ComparedPeople &people, const QString &id);

/// Writes a section about one person: the fields of both exports that differ, and what the plugin
/// makes of those that it misreads.
void reportPerson(const ComparedPeople &people, int person, ReportWriter &report);
