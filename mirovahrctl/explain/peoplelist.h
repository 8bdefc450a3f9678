#pragma once

#include <QString>

class PeopleSearch;
class Report;

/// Reports whom a search has found, when that is not exactly one person. Returns the verdict in one
/// sentence.
QString listPeople(const PeopleSearch &search, Report &report);
