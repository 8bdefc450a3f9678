#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// One run of a subcommand of mirovahrctl, in the process of the test.
struct ToolRun {
    ExitStatus status = ExitStatus::Usage;
    QString out;
    QString err;

    /// The output as JSON; empty when it is none.
    QJsonObject json() const;
    /// Why a run with --json failed; empty when it did not.
    QString failure() const { return json().value("error").toString(); }
    /// The findings of a run with --json.
    QJsonArray findings() const;
    /// The findings of one rule.
    QVector<QJsonObject> findingsOf(const QString &rule) const;
    /// The rules of all findings, each once, in alphabetical order.
    QStringList rules() const;
    /// Status, output and errors, for the message of a failed check.
    QByteArray report() const;
};

/// The connect options of an attendance server that does not wait for a silent server for ever.
inline const QStringList kTimeouts{
    QStringLiteral("--connect-options"),
    QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=30;MYSQL_OPT_READ_TIMEOUT=120;"
                   "MYSQL_OPT_WRITE_TIMEOUT=120")};

/// Runs `mirovahrctl` with these arguments. Standard error is no terminal unless \a interactive,
/// and standard output is as wide as any text.
ToolRun runTool(const QStringList &arguments, bool interactive = false);

/// Fails the test, with what the tool printed, unless it ended with this status.
#define COMPARE_EXIT(run, expected)                                                                \
    do {                                                                                           \
        const ToolRun &comparedRun = run;                                                          \
        QVERIFY2(comparedRun.status == (expected), comparedRun.report().constData());              \
    } while (false)
