#pragma once

#include "mirovahrctl/log/loghistorybuilder.h"
#include "mirovahrctl/report/exitstatus.h"

class Console;
class QJsonObject;
struct Finding;

/// Shows what a log says while it is written: one line for each synchronisation that is over, each
/// warning and each error. Where the console wants JSON, each line is an object.
class LiveReport : public LogListener {
public:
    explicit LiveReport(Console &console);

    void synchronisationOver(const LoggedSynchronisation &synchronisation) override;
    void problemLogged(const LoggedProblem &problem, const LogHistory &history) override;
    void unknownLogged(const LoggedText &message) override;

    /// Findings after a warning or an error, otherwise Fine.
    ExitStatus status() const;
    /// Nobody takes what it shows.
    bool isClosed() const { return m_isClosed; }

private:
    /// \a text: what people see of the finding. \a time may be empty.
    void show(const Finding &finding, const QString &text, const QString &time);
    void printObject(const QString &kind, const QJsonObject &object);
    void printLine(const QString &time, const QString &text);
    void print(const QString &line);

    Console &m_console;
    const bool m_isJson;
    bool m_hasSeriousFindings = false;
    bool m_isClosed = false;
};
