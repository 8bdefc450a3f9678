#include "mirovahrctl/pluginside/caughtlog.h"

namespace {

CaughtLog *currentLog = nullptr;

} // namespace

CaughtLog::CaughtLog()
    : m_outer(currentLog)
    , m_outerHandler(qInstallMessageHandler(handle))
{
    currentLog = this;
}

CaughtLog::~CaughtLog()
{
    qInstallMessageHandler(m_outerHandler);
    currentLog = m_outer;
}

QString CaughtLog::complaints() const
{
    return m_complaints.join(QStringLiteral("; "));
}

void CaughtLog::handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtWarningMsg || type == QtCriticalMsg)
        currentLog->m_complaints += text;
}
