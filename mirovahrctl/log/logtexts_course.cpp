// The texts about the plugin as a whole, its ticks and its export.

#include "mirovahrctl/log/logtextgroups.h"

#include <iterator>

namespace {

constexpr LogText kStartAndStop[] = {
    {"MirovaHR: INI file not found on:",
     "warning",
     Form::MessageFollows,
     QT_TRANSLATE_NOOP(
         "Text",
         "The INI file is not at this path: the defaults are in force, with /tmp/ron.data."),
     QT_TRANSLATE_NOOP("Text", "Install the INI file, and start the server again."),
     {Role::File}},
    {"MirovaHR is DISABLED", "warning", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "enabled is false: nothing is synchronised."),
     QT_TRANSLATE_NOOP("Text",
                       "Unless that is intended, set it to true, and start the server again.")},
    {"MirovaHR not start properly - init failed!", "warning", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The plugin could not start: nothing is synchronised."),
     QT_TRANSLATE_NOOP("Text", "Start the server again; before that, look for an error above.")},
    {"Start MirovaHR..",
     "debug 1",
     Form::Whole,
     "The server starts the plugin.",
     "",
     {},
     Event::Started},
    {"Stop MirovaHR..", "debug 1", Form::Whole, "The server stops it.", "", {}, Event::Stopped},
    {"Pause MirovaHR..",
     "debug 1",
     Form::Whole,
     "The server pauses it: no ticks.",
     "",
     {},
     Event::Stopped},
    {"Resume MirovaHR..",
     "debug 1",
     Form::Whole,
     "The server lets it go on.",
     "",
     {},
     Event::Started},
    {"MirovaHR::init()",
     "debug 1",
     Form::Whole,
     "The INI file is read, the thread is made.",
     "",
     {},
     Event::Loaded},
    {"MHRWorker::setMes() count: %i)", "debug 1", Form::Whole,
     "The number of relationship states in group MES. If it is 0 where there should be some, check "
     "the INI file."},
    {"MHRWorker::setTepDb(%s)", "debug 1", Form::Whole, "The name of the plugin's connection."},
    {"MHRWorker::start()", "debug 1", Form::Whole, "The worker is to tick."},
    {"MHRWorker::init()", "debug 1", Form::Whole,
     "The worker is set up. The same text marks its stop."},
    {"MHRWorker NOT initialized properly - START was terminated!", "critical", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The worker cannot tick: nothing is synchronised."),
     QT_TRANSLATE_NOOP("Text", "Start the server again.")},
    {"Directory '%s' is not created!",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "The server's folder for data or logs is missing and cannot be created."),
     QT_TRANSLATE_NOOP("Text", "Check the rights of the folder above it."),
     {Role::File}},
    {"Directory '%s' is not writable!",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "The server's user may not write to its folder for data or logs."),
     QT_TRANSLATE_NOOP("Text", "Check its rights."),
     {Role::File}},
};

constexpr LogText kTicksCommandAndFile[] = {
    {"MHRWorker::checkSync(): #%u", "debug 2", Form::Whole, "A tick.", "", {}, Event::Tick},
    {"MHRWorker::checkSync() - synchronization is in progress, this iteration was skipped!",
     "warning", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "A tick came within another one; nothing is lost.")},
    {"MHRWorker::checkSync() - database not open!", "warning", Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "The tick was dropped, since the database could not be opened; the next one "
                       "tries again, but a synchronisation that was due waits for its next turn."),
     QT_TRANSLATE_NOOP("Text", "If it goes on: is the database server up, the password right?")},
    {"MHRWorker::dbCheckOpen()", "debug 2", Form::Whole,
     "The connection is opened; at the end of a tick the same text marks that it is closed."},
    {"MHRWorker::dbCheckOpen() - SQL ERROR: %s", "critical", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "Why the database could not be opened; the tick was dropped."),
     QT_TRANSLATE_NOOP("Text", "If it goes on: is the database server up, the password right?")},
    {"MHRWorker: BEGIN synchronization #%u (force: %s)",
     "debug 1",
     Form::Whole,
     "A synchronisation begins.",
     "",
     {},
     Event::Begin},
    {"MHRWorker: END synchronization #%u (waiting records: %i)",
     "debug 1",
     Form::Whole,
     "The synchronisation is over; so many records wait for a branch or a calendar group.",
     "",
     {},
     Event::End},
    {"MHRWorker::runCommand(): '%s'", "debug 2", Form::Whole, "The export command runs."},
    {"MHRWorker::runCommand() - NO command, aborted!", "warning", Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "syncCommandRun requires a command and syncCommand is empty; a file that "
                       "lies there is read all the same."),
     QT_TRANSLATE_NOOP("Text", "Set one of the two, and start the server again.")},
    {"MHRWorker::runCommand() - command: '%s' exit with code: %i",
     "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "The export command failed; a file that lies there is read all the same."),
     QT_TRANSLATE_NOOP("Text",
                       "The code says why: -2 it could not be started, -1 it crashed, otherwise it "
                       "is its own status (5 of the gate: refused)."),
     {Role::Command, Role::Code}},
    {"MHRWorker: isql process %s", "critical", Form::Whole,
     QT_TRANSLATE_NOOP("Text", "A helper process failed. The plugin starts none itself."),
     QT_TRANSLATE_NOOP("Text", "Look for the component of the server that starts it.")},
    {"MHRWorker::loadAndParseData()", "debug 2", Form::Whole, "The export is read."},
    {"MHRWorker::loadAndParseData() - fields: %s", "debug 3", Form::Whole,
     "The names of its fields."},
    {"MHRWorker::loadAndParseData() - loading data from file: '%s'", "info 3", Form::Whole,
     "Its path."},
    {"MHRWorker::loadAndParseData() - file '%s' NOT found!",
     "warning 2",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text", "No export lies there. Normal between HR's deliveries."),
     "",
     {Role::File}},
    {"MHRWorker::loadAndParseData() - file '%s' not opened!",
     "critical",
     Form::Whole,
     QT_TRANSLATE_NOOP(
         "Text",
         "The export could not be opened, so nobody was read: the server's user may not read it, "
         "or a file server (Samba, NFS) keeps it for a client that is still at it."),
     QT_TRANSLATE_NOOP(
         "Text",
         "In the first case mend its rights; in the second the next synchronisation reads it."),
     {Role::File}},
    {"MHRWorker::loadAndParseData() - file '%s' NOT removed!",
     "warning",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "One of two: the file cannot be read to its end, then the text comes with "
                       "deleteFile=false, too; or it was read, and the server's user may not write "
                       "to the folder. It is read again next time."),
     QT_TRANSLATE_NOOP("Text",
                       "mirovahrctl check-file says whether it can be read to its end; otherwise "
                       "mend the rights of its folder."),
     {Role::File}},
    {"MHRWorker::parseLine('%s')", "debug 3", Form::Whole, "A line.", "", {}, Event::LineRead},
    {"MHRWorker::parseLine() - parts count (%i) <> fields count(%i) - line skipped!",
     "warning 3",
     Form::Whole,
     QT_TRANSLATE_NOOP("Text",
                       "A line without 18 fields was dropped: its person is not synchronised."),
     QT_TRANSLATE_NOOP("Text", "mirovahrctl check-file names the line for HR."),
     {},
     Event::LineSkipped},
};

} // namespace

LogTextGroup LogTextGroups::startAndStop()
{
    return {"Start and stop", {std::begin(kStartAndStop), std::end(kStartAndStop)}};
}

LogTextGroup LogTextGroups::ticksCommandAndFile()
{
    return {"Ticks, command and file",
            {std::begin(kTicksCommandAndFile), std::end(kTicksCommandAndFile)}};
}
