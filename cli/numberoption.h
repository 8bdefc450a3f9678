#pragma once

#include <QString>

class QCommandLineParser;

/// Reads a number from 0 to \a max. False when the text is no such number; \a value then stays as
/// it is.
bool readNumber(const QString &text, uint max, uint &value);

/// Reads a number from 0 to \a max off a command line. An absent option leaves \a value as it is.
/// False when the option's value is no such number.
bool readNumberOption(const QCommandLineParser &parser, const QString &name, uint max, uint &value);
