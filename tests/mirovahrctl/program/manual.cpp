#include "tests/mirovahrctl/program/manual.h"

#include <QFile>
#include <QRegularExpression>

namespace Manual {

QString path()
{
    return MIROVAHR_MANUAL;
}

QString text()
{
    QFile file(path());
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", MIROVAHR_MANUAL);
    return QString::fromUtf8(file.readAll()).replace("\\-", "-");
}

QString about(const QString &subcommand)
{
    const QRegularExpression section(QStringLiteral("^\\.SS %1( [^\\n]*)?\\n(.*?)^\\.S[SH] ")
                                         .arg(QRegularExpression::escape(subcommand)),
                                     QRegularExpression::MultilineOption
                                         | QRegularExpression::DotMatchesEverythingOption);
    return section.match(text()).captured(2);
}

QStringList rules(const QString &subcommand)
{
    static const QRegularExpression list("^(?:Rules|Notes)[^:]*:\\n((?:\\.BR [a-z0-9-]+ [,.]\\n)+)",
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression rule("^\\.BR ([a-z0-9-]+) [,.]$",
                                         QRegularExpression::MultilineOption);
    QStringList rules;
    const QString about = Manual::about(subcommand);
    auto lists = list.globalMatch(about);
    while (lists.hasNext()) {
        auto matches = rule.globalMatch(lists.next().captured(1));
        while (matches.hasNext())
            rules << matches.next().captured(1);
    }
    rules.sort();
    return rules;
}

} // namespace Manual
