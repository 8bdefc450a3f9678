#pragma once

#include <QStringList>

/// What a piece of work left in the log ("D text") and what the server received.
struct Trace {
    QStringList log;
    QStringList statements;
};
