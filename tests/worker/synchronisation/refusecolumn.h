#pragma once

#include <QString>

class TestDatabase;

/// Makes every query fail that reads a column in a row of \a condition, until the next reset.
void refuseColumn(TestDatabase &database, const QString &table, const QString &column,
                  const QString &condition = QStringLiteral("TRUE"));
