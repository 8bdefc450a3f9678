#pragma once

#include <QString>

class QCommandLineParser;

/// Reads a number from 0 to \a max. False when the text is not such a number; \a value then stays
/// unchanged.
bool readNumber(const QString &text, uint max, uint &value);

/// Reads a numeric option from 0 to \a max. An absent option leaves \a value unchanged.
/// False when the option's value is not such a number.
bool readNumberOption(const QCommandLineParser &parser, const QString &name, uint max, uint &value);
