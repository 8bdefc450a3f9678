#pragma once

#include "tests/support/logcapture.h"
#include "tests/support/mysqlproxy.h"

#include <QString>
#include <QStringList>
#include <QVector>

// What a disturbed run has sent and logged.

using Commands = QVector<MySqlProxy::Command>;

/// How the line of a tick begins; its number follows.
const QString kTick = QStringLiteral("MHRWorker::checkSync(): #");

/// The warnings and errors.
QStringList problems(const QStringList &lines);
/// The texts of those commands that the server carried out.
QStringList carriedOut(const Commands &commands);
/// The texts that \a others lack; a text that occurs twice counts twice.
QStringList without(QStringList texts, const QStringList &others);
/// The number behind the last occurrence of a text.
int lastNumber(const QStringList &lines, const QString &text);
/// Up to the first closing of the connection.
Commands firstTick(const Commands &commands);
/// Up to the line of the second tick, which must be there.
QStringList firstTick(const QStringList &lines);
bool waitForNextTick(const LogCapture &log);
