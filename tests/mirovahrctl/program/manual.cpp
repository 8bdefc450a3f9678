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
    static const QRegularExpression rule("^\\.BR ([a-z0-9-]+) [,.]$",
                                         QRegularExpression::MultilineOption);
    QStringList rules;
    auto matches = rule.globalMatch(about(subcommand));
    while (matches.hasNext())
        rules << matches.next().captured(1);
    rules.sort();
    return rules;
}

QStringList RuleFixtures::missing(const QString &subcommand, const QSet<QString> &others) const
{
    const QStringList all = rules(subcommand);
    if (all.isEmpty())
        return {"the rules of " + subcommand};
    QStringList missing;
    for (const QString &rule : all) {
        if (!others.contains(rule) && !(tripped.contains(rule) && passed.contains(rule)))
            missing += rule;
    }
    return missing;
}

} // namespace Manual
