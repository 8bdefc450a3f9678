#pragma once

#include "mirovahrctl/export/rejectswriter.h"
#include "mirovahrctl/program/outputfile.h"

#include <QString>

struct CheckedLine;

/// The file of check-file for the lines that do not reach the database as they should: see
/// RejectsWriter.
class RejectsFile {
public:
    /// \a exportName is what HR calls the export.
    RejectsFile(const QString &path, const QString &exportName);

    /// Both return false when the file cannot be written; errorString() then says why.
    bool open();
    /// Puts the file in its place, also when it has no lines.
    bool commit();

    void add(const CheckedLine &line) { m_text.add(line); }

    QString path() const { return m_file.fileName(); }
    QString errorString() const { return m_file.errorString(); }

private:
    OutputFile m_file;
    RejectsWriter m_text;
};
