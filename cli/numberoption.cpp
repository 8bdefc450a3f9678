#include "cli/numberoption.h"

#include <QCommandLineParser>

bool readNumber(const QString &text, uint max, uint &value)
{
    bool ok = false;
    const uint number = text.toUInt(&ok);
    if (!ok || number > max)
        return false;
    value = number;
    return true;
}

bool readNumberOption(const QCommandLineParser &parser, const QString &name, uint max, uint &value)
{
    return !parser.isSet(name) || readNumber(parser.value(name), max, value);
}
