#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

/// Like QVERIFY, for an expression that runs SQL: a failure shows the database's own error.
/// \a object is the QSqlQuery or QSqlDatabase that the expression uses.
#define VERIFY_SQL(object, expression)                                                             \
    QVERIFY2(expression,                                                                           \
             qPrintable(QStringLiteral("%1 - %2").arg(QStringLiteral(#expression),                 \
                                                      (object).lastError().text())))
