#pragma once

#include "cli/database.h"
#include "cli/unixsignals.h"
#include "yavhost/exitstatus.h"
#include "yavhost/hostoptions.h"
#include "yavhost/logprinter.h"
#include "yavhost/serverplugin.h"
#include "yavhost/synchronizationwatch.h"

#include <QString>

/// One run of one plugin, in the order of the attendance server: load, open the database, set up,
/// start, keep running, stop, unload.
class HostSession {
public:
    explicit HostSession(const HostOptions &options);

    /// Runs the application's event loop until a signal or, with once, the end of the first
    /// synchronisation. To be called once.
    ExitStatus run();

    /// Why run() did not succeed, when more is known than its status says.
    QString detail() const { return m_detail; }

private:
    LogPrinter::Observer observer();
    bool openDatabase();
    bool startPlugin();
    void handleSignal(int signalNumber);

    HostOptions m_options;
    UnixSignals m_signals;
    SynchronizationWatch m_watch;
    LogPrinter m_log;
    Database m_database; // before the plugin: the plugin holds a copy of its handle
    ServerPlugin m_plugin;
    QString m_detail;
};
