#pragma once

#include "mirovahrctl/comparison/comparedpeople.h"
#include "mirovahrctl/gate/gateassessment.h"
#include "mirovahrctl/site/backslash.h"

#include <QString>

#include <optional>

class Console;
class GateFolder;
class QFile;
class RejectsWriter;

/// Reads the gate's copy of HR's file to its end, as check-file does, and the last admitted file to
/// compare with.
class GateExamination {
public:
    /// \a texts: how the texts of the new file are written before the plugin reads them.
    GateExamination(GateFolder &folder, const std::optional<Backslash> &texts, Console &console);

    /// Both files are in the folder; the second may be missing. False when one cannot be read;
    /// errorString() then says why, a sentence without its full stop.
    bool run(const QString &copy, const QString &lastAdmitted, RejectsWriter &rejects);

    const GateFacts &facts() const { return m_facts; }
    /// The people of both files.
    const ComparedPeople &people() const { return m_people; }
    /// Whether the two files are equal, byte for byte.
    bool isUnchanged() const { return m_unchanged; }
    QString errorString() const { return m_error; }

private:
    bool openFiles(const QString &copy, QFile &newFile, const QString &lastAdmitted,
                   QFile &oldFile);
    bool compareContents(QFile &newFile, QFile &oldFile);
    bool readOld(QFile &file);
    bool readNew(QFile &file, RejectsWriter &rejects);
    bool failReadingCopy(const QString &reason);
    bool failReadingLast(const QString &reason);

    GateFolder &m_folder;
    const std::optional<Backslash> m_texts;
    Console &m_console;
    ComparedPeople m_people;
    GateFacts m_facts;
    bool m_unchanged = false;
    QString m_error;
};
