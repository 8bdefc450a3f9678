#include "yavhost/hostoutput.h"

#include <cstdio>

namespace {

void print(std::FILE *stream, const QString &sentence)
{
    std::fprintf(stream, "yavhost: %s\n", sentence.toUtf8().constData());
    std::fflush(stream);
}

} // namespace

void printInfo(const QString &sentence)
{
    print(stdout, sentence);
}

void printWarning(const QString &sentence)
{
    print(stderr, QStringLiteral("Warning: %1.").arg(sentence));
}

void printFailure(ExitStatus status, const QString &detail)
{
    if (status == ExitStatus::Success)
        return;
    QString sentence = exitStatusSentence(status);
    if (!detail.isEmpty())
        sentence += QStringLiteral(": ") + detail;
    if (!sentence.endsWith(QLatin1Char('.')))
        sentence += QLatin1Char('.');
    print(stderr, sentence);
}
