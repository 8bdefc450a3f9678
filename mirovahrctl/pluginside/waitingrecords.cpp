#include "mirovahrctl/pluginside/waitingrecords.h"

#include <QRegularExpression>

namespace {

constexpr std::string_view kLoaded = "MirovaHR::init()";
constexpr std::string_view kEnd = "MHRWorker: END synchronization #";

bool contains(std::string_view line, std::string_view text)
{
    return line.find(text) != std::string_view::npos;
}

} // namespace

void WaitingRecords::take(std::string_view line)
{
    // Both stand at the end of their line. A text that quotes one goes on behind it.
    static const QRegularExpression either(
        QStringLiteral("(?:MirovaHR::init\\(\\)|MHRWorker: END synchronization #\\d+ "
                       "\\(waiting records: (?<count>\\d+)\\))\\s*$"));
    if (!contains(line, kEnd) && !contains(line, kLoaded))
        return;
    const QRegularExpressionMatch match =
        either.match(QString::fromUtf8(line.data(), int(line.size())));
    if (!match.hasMatch())
        return;
    const QString count = match.captured(QStringLiteral("count"));
    m_count = count.isEmpty() ? std::nullopt : std::make_optional(count.toLongLong());
}
