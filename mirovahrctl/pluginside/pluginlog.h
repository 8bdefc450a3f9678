#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>

/// Captures what the plugin's own code logs, as long as this object lives: it gives the reason of a
/// failure only there. Of several objects the last one made gets the lines, so they must go in the
/// reverse order.
class PluginLog {
public:
    using Listener = std::function<void(QtMsgType type, const QString &text)>;

    /// Keeps the warnings and errors, and drops the rest.
    PluginLog();
    /// Hands over each line, and keeps none.
    explicit PluginLog(Listener listener);
    ~PluginLog();
    PluginLog(const PluginLog &) = delete;
    PluginLog &operator=(const PluginLog &) = delete;

    /// The warnings and errors that were kept, joined by "; "; empty when there were none.
    QString problems() const;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QStringList m_problems;
    const Listener m_listener;
    PluginLog *const m_outer;
    const QtMessageHandler m_outerHandler;
};
