#include "mirovahrctl/report/finding.h"

Finding makeFinding(Severity severity, const char *rule, const QString &message,
                    const QString &advice)
{
    Finding finding;
    finding.severity = severity;
    finding.rule = QString::fromLatin1(rule);
    finding.message = message;
    finding.advice = advice;
    return finding;
}
