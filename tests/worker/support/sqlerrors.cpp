#include "tests/worker/support/sqlerrors.h"

namespace SqlErrors {

QString missing(const QString &table)
{
    return "[1146]: " + missingText(table);
}

QString missingText(const QString &table)
{
    return "Table 'tepdb." + table + "' doesn't exist QMYSQL: Unable to execute query";
}

QString refused()
{
    return "[1644]: " + refusedText();
}

QString refusedText()
{
    return "refused by the test QMYSQL: Unable to execute query";
}

QString refusedColumn()
{
    return "[1644]: refused by the test QMYSQL: Unable to store result";
}

QString gone()
{
    return "[2006]: " + goneText();
}

QString goneText()
{
    return "Server has gone away QMYSQL: Unable to execute query";
}

} // namespace SqlErrors
