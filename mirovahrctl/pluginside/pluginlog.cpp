#include "mirovahrctl/pluginside/pluginlog.h"

#include <utility>

namespace {

PluginLog *currentLog = nullptr;

} // namespace

PluginLog::PluginLog()
    : PluginLog([this](QtMsgType type, const QString &text) {
        if (type == QtWarningMsg || type == QtCriticalMsg)
            m_problems += text;
    })
{
}

PluginLog::PluginLog(Listener listener)
    : m_listener(std::move(listener))
    , m_outer(currentLog)
    , m_outerHandler(qInstallMessageHandler(handle))
{
    currentLog = this;
}

PluginLog::~PluginLog()
{
    qInstallMessageHandler(m_outerHandler);
    currentLog = m_outer;
}

QString PluginLog::problems() const
{
    return m_problems.join(QStringLiteral("; "));
}

void PluginLog::handle(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    currentLog->m_listener(type, text);
}
