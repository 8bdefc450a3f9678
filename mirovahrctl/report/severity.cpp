#include "mirovahrctl/report/severity.h"

#include <QtGlobal>

QString severityWord(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStringLiteral("note");
    case Severity::Warning:
        return QStringLiteral("warning");
    case Severity::Error:
        return QStringLiteral("error");
    }
    Q_UNREACHABLE();
}
