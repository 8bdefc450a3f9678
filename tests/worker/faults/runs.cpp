#include "tests/worker/faults/runs.h"

#include <QRegularExpression>

QStringList problems(const QStringList &lines)
{
    return lines.filter(QRegularExpression("^[WCF] "));
}

QStringList carriedOut(const Commands &commands)
{
    QStringList texts;
    for (const MySqlProxy::Command &command : commands) {
        if (command.carriedOut)
            texts += command.text;
    }
    return texts;
}

QStringList without(QStringList texts, const QStringList &others)
{
    for (const QString &text : others)
        texts.removeOne(text);
    return texts;
}

int lastNumber(const QStringList &lines, const QString &text)
{
    const QString line = lines.filter(text).last();
    const QString rest = line.mid(line.indexOf(text) + text.size());
    return rest.section(QRegularExpression("\\D"), 0, 0).toInt();
}

Commands firstTick(const Commands &commands)
{
    Commands first;
    for (const MySqlProxy::Command &command : commands) {
        first += command;
        if (command.text == "QUIT")
            break;
    }
    return first;
}

QStringList firstTick(const QStringList &lines)
{
    return lines.mid(0, lines.indexOf(lines.filter(kTick).value(1)));
}

bool waitForNextTick(const LogCapture &log)
{
    return log.waitForText(kTick + QString::number(lastNumber(log.lines(), kTick) + 1));
}
