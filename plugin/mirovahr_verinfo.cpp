#include "plugin/mirovahr.h"

#include "plugin/buildstamp.h"

QMap<QString, QString> MirovaHR::getVerInfo() const
{
    QMap<QString, QString> info{
        {QStringLiteral("VER"), getVersion()},
        {QStringLiteral("corvaType"), QStringLiteral("PLG.MH")},
        {QStringLiteral("TEPDB"), QStringLiteral("20.11.26")},
    };
    const QString stamp = BuildStamp::ofThisBuild();
    if (!stamp.isEmpty())
        info.insert(QStringLiteral("BUILD"), stamp);
    return info;
}
