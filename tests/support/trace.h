#pragma once

#include <QStringList>

/// The log lines ("D text") of a piece of work, and the statements that the server received.
struct Trace {
    QStringList log;
    QStringList statements;
};
