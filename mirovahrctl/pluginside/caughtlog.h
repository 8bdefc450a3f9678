#pragma once

#include <QStringList>
#include <QtGlobal>

/// Catches what the plugin's own classes log, as long as this object lives: they tell the reason of
/// a failure only there.
class CaughtLog {
public:
    CaughtLog();
    ~CaughtLog();
    CaughtLog(const CaughtLog &) = delete;
    CaughtLog &operator=(const CaughtLog &) = delete;

    /// The warnings and errors so far; empty when there were none.
    QString complaints() const;

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QStringList m_complaints;
    CaughtLog *const m_outer;
    const QtMessageHandler m_outerHandler;
};
