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
struct GateOptions;

/// One run of the gate.
///
/// The order of its steps makes it safe to be killed between any two: what is published is always a
/// whole file. An admitted file becomes the one to compare with before it is published; a run that
/// does not get so far is made good by the next one, which finds the file unchanged and publishes
/// it, also when it had been admitted by --accept.
class GateRun {
public:
    GateRun(const CommandLine &line, const GateOptions &options, Console &console);

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
    /// Ends the run because something else than the file is wrong; what is known of that is
    /// recorded if it can be.
    ExitStatus fail(const QString &sentence);

    const CommandLine &m_line;
    const GateOptions &m_options;
    Console &m_console;
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
    bool m_wasTaken = false; ///< a file lay where the plugin reads when the run began
};
