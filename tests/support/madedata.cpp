#include "tests/support/madedata.h"

#include "privatedb/privatemariadb.h"

#include <QFile>

void MadeData::use()
{
    qputenv(PrivateMariaDb::kDataFolderVariable, MIROVAHR_MADE_DATA "/system");
}

QString MadeData::referenceDatabase()
{
    return QStringLiteral(MIROVAHR_MADE_DATA "/reference");
}
