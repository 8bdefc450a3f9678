#include "cli/numberoption.h"

#include <QCommandLineParser>

bool readNumberOption(const QCommandLineParser &parser, const QString &name, uint max, uint &value)
{
    if (!parser.isSet(name)) {
        return true;
    }
    bool ok = false;
    value = parser.value(name).toUInt(&ok);
    return ok && value <= max;
}
