#pragma once

#include "mirovahrctl/export/sqltexts.h"
#include "mirovahrctl/gatestate/gatefile.h"
#include "mirovahrctl/gatestate/gatefolder.h"

#include <QString>

/// Publishes an admitted file where the plugin reads it, with its texts in the form that the
/// plugin's statements need.
class GatePublication {
public:
    /// \a path: the file that the plugin reads; \a texts: what a backslash is to the database
    /// server, nothing to publish the texts as they are.
    GatePublication(const QString &path, const std::optional<Backslash> &texts);

    /// Opens the folder. All three return false when they fail; errorString() then says why, a
    /// sentence without its full stop.
    bool open();
    /// Writes the file to a temporary one beside it, and waits until that is on the disk.
    bool prepare(GateFolder &folder, const QString &copy);
    /// Replaces the file that the plugin reads.
    bool publish();

    /// Whether the file was replaced, even if publish() failed afterwards.
    bool isPublished() const { return m_file.isInPlace(); }
    /// Whether a published file exists now.
    bool isTaken() const { return m_folder.hasFile(m_name); }
    QString errorString() const { return m_error; }

private:
    bool write(QFile &source);
    bool failReading(const QString &reason);
    bool fail(const QString &error);

    const QString m_path;
    const QString m_name;
    const SqlTexts::Route m_texts;
    GateFolder m_folder;
    GateFile m_file;
    QString m_error;
};
