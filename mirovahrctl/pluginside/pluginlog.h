#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

/// Takes what the plugin logs, as long as this object lives, and hands over each line.
class PluginLog {
public:
    using Listener = std::function<void(QtMsgType type, const QString &text)>;

    explicit PluginLog(Listener listener);
    ~PluginLog();
    PluginLog(const PluginLog &) = delete;
    PluginLog &operator=(const PluginLog &) = delete;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    const Listener m_listener;
    PluginLog *const m_outer;
    const QtMessageHandler m_outerHandler;
};
