#include "mirovahrctl/status/nagios.h"

#include "cli/text.h"
#include "mirovahrctl/report/language.h"
#include "mirovahrctl/report/wording.h"
#include "mirovahrctl/status/statusassessment.h"
#include "mirovahrctl/status/statusdata.h"

#include <QStringList>

namespace {

constexpr const char *kWords[] = {"OK", "WARNING", "CRITICAL", "UNKNOWN"};

QString limit(const std::optional<qint64> &limit)
{
    return limit ? QString::number(*limit) : QString();
}

QString performance(const StatusData &data, const StatusAssessment &assessment,
                    const AgeLimits &limits)
{
    QStringList values;
    if (assessment.age) {
        values += QStringLiteral("age=%1s;%2;%3;0")
                      .arg(QString::number(*assessment.age), limit(limits.warning),
                           limit(limits.critical));
    }
    values += QStringLiteral("people=%1;;;0").arg(data.activePeople);
    values += QStringLiteral("queue=%1;;;0").arg(data.queued);
    values += QStringLiteral("corrections=%1;;;0").arg(data.correctionsToday);
    values += QStringLiteral("force=%1;;;0;1").arg(data.forced ? 1 : 0);
    return values.join(QLatin1Char(' '));
}

QString ageText(const StatusAssessment &assessment)
{
    if (!assessment.age)
        return Text::tr("no trace of the plugin yet");
    const QString text = assessment.isAgeOfAdmission ? Text::tr("last admission of a file %1 ago")
                                                     : Text::tr("last trace of the plugin %1 ago");
    return text.arg(Wording::span(*assessment.age));
}

QString summary(const StatusData &data, const StatusAssessment &assessment)
{
    const QStringList parts{
        ageText(assessment),
        Text::tr("%Ln active person(s)", nullptr, Language::count(data.activePeople)),
        Text::tr("%Ln entry(s) in the terminal queue", nullptr, Language::count(data.queued))};
    return parts.join(QStringLiteral(", "));
}

QString problems(const StatusAssessment &assessment)
{
    QStringList messages;
    for (const Finding &finding : assessment.findings)
        messages += finding.message;
    return messages.join(QLatin1Char(' '));
}

} // namespace

ExitStatus Nagios::exitStatus(Level level)
{
    return static_cast<ExitStatus>(level);
}

QString Nagios::line(Level level, const QString &text)
{
    // A "|" begins the performance data.
    QString fit = text.simplified();
    fit.replace(QLatin1Char('|'), QLatin1Char('/'));
    return QStringLiteral("MIROVAHR %1 - %2")
        .arg(QLatin1String(kWords[static_cast<int>(level)]), Wording::visible(fit));
}

Nagios::Level Nagios::level(const StatusAssessment &assessment)
{
    Level level = Level::Ok;
    for (const Finding &finding : assessment.findings) {
        if (finding.severity == Severity::Error)
            return Level::Critical;
        level = Level::Warning;
    }
    return level;
}

QString Nagios::statusLine(const StatusData &data, const StatusAssessment &assessment,
                           const AgeLimits &limits)
{
    const QString text =
        assessment.findings.isEmpty() ? summary(data, assessment) : problems(assessment);
    return line(level(assessment), text) + QStringLiteral(" | ")
        + performance(data, assessment, limits);
}
