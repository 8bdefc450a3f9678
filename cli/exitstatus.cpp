#include "cli/exitstatus.h"

#include "cli/text.h"

#include <QStringList>

QString CommonStatus::help(const QMap<int, QString> &sentences)
{
    QStringList lines{Text::tr("Exit status:")};
    for (auto status = sentences.cbegin(); status != sentences.cend(); ++status)
        lines << QStringLiteral("  %1  %2").arg(status.key()).arg(status.value());
    return lines.join(QLatin1Char('\n'));
}
