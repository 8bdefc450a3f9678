#include "tests/support/sqlscript.h"

#include <QFile>

QStringList statementsOf(const QString &file)
{
    QFile script(file);
    if (!script.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read: %s", qPrintable(file), qPrintable(script.errorString()));
    const QString command = QStringLiteral("DELIMITER ");
    QString delimiter = QStringLiteral(";");
    QStringList statements;
    QString statement;
    const QStringList lines = QString::fromUtf8(script.readAll()).split('\n');
    for (const QString &line : lines) {
        const QString code = line.section(QStringLiteral("--"), 0, 0).trimmed();
        if (code.startsWith(command)) {
            delimiter = code.mid(command.size());
            continue;
        }
        statement += code + '\n';
        if (code.endsWith(delimiter)) {
            statement.chop(delimiter.size() + 1);
            statements += statement.trimmed();
            statement.clear();
        }
    }
    return statements;
}
