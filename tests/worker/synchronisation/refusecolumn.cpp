#include "tests/worker/synchronisation/refusecolumn.h"

#include "tests/support/testdatabase.h"

void refuseColumn(TestDatabase &database, const QString &table, const QString &column,
                  const QString &condition)
{
    QStringList values;
    const TableRows columns = database.rows("SHOW COLUMNS FROM " + table);
    for (const QStringList &row : columns) {
        const QString name = "`" + row.first() + "`";
        values += row.first() == column
            ? "IF(" + condition + ", refuseValue(), " + name + ") " + name
            : name;
    }
    database.hideTable(table);
    database.run("CREATE FUNCTION refuseValue() RETURNS INT BEGIN "
                 "SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'refused by the test'; RETURN 0; END");
    database.run("CREATE VIEW " + table + " AS SELECT " + values.join(", ") + " FROM " + table
                 + "_hidden");
}
