#include "mirovahrctl/site/serverversion.h"

ServerVersion ServerVersion::parse(const QString &text)
{
    ServerVersion version;
    version.isMariaDb = text.contains(QLatin1String("MariaDB"), Qt::CaseInsensitive);
    version.major = text.section(QLatin1Char('.'), 0, 0).toInt();
    version.text = text;
    return version;
}

QString ServerVersion::name() const
{
    return QStringLiteral("%1 %2").arg(
        isMariaDb ? QLatin1String("MariaDB") : QLatin1String("MySQL"), text);
}
