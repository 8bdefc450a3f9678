#pragma once

#include "mirovahrctl/gate/gateexamination.h"
#include "mirovahrctl/gate/gatepublication.h"
#include "mirovahrctl/gate/gatesource.h"
#include "mirovahrctl/gatestate/gatefile.h"
#include "mirovahrctl/gatestate/gatefolder.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "mirovahrctl/report/exitstatus.h"

#include <QStringList>
#include <QVector>

#include <optional>

class CommandLine;
class Console;
class Report;
struct GateOptions;

/// One run of the gate.
///
/// The order of its steps makes it safe to kill it between any two: what is published is always a
/// complete file. An admitted file becomes the last admitted one before it is published. When a run
/// is killed in between, the next one finds the file unchanged and publishes it, even if it was
/// admitted by --accept.
class GateRun {
public:
    GateRun(const CommandLine &line, const GateOptions &options, Report &report, Console &console);

    /// Returns the status to end with.
    ExitStatus run();

private:
    /// Each has a status when the run ends with it.
    std::optional<ExitStatus> openFolders();
    std::optional<ExitStatus> lock();
    std::optional<ExitStatus> takeFile();
    std::optional<ExitStatus> openSource();
    std::optional<ExitStatus> examine();

    ExitStatus decide();
    ExitStatus admit(const QStringList &overridden);
    bool makeLast();
    bool recordAdmission(const QStringList &overridden);
    ExitStatus refuse(const QVector<GateReason> &reasons);
    ExitStatus report(bool isAdmitted, const QVector<GateReason> &reasons);
    bool keepError(const QString &error);
    /// Ends the run because something other than the file is wrong, and records that if possible.
    ExitStatus fail(const QString &sentence);

    const CommandLine &m_line;
    const GateOptions &m_options;
    Console &m_console;
    Report &m_report;
    GateFolder m_folder;
    GateFolder m_rejectsFolder;
    GatePublication m_publication;
    GateSource m_source;
    GateFile m_copy; ///< of HR's file; becomes the last admitted one
    GateFile m_rejects;
    GateExamination m_examination;
    GateStatus m_status;
    QString m_error; ///< why a function returned false
    bool m_isLocked = false;
    bool m_isExamined = false;
    bool m_wasTaken = false; ///< a published file was there when the run began
};
