#pragma once

#include "mirovahrctl/gatestate/gatefile.h"
#include "mirovahrctl/gatestate/gatefolder.h"

#include <QString>

/// Puts an admitted file in the place where the plugin reads it.
class GatePublication {
public:
    /// \a path is that place.
    explicit GatePublication(const QString &path);

    /// All return false when that is not possible; errorString() then says why, a sentence without
    /// its full stop.
    bool open();
    /// Writes the file beside its place, and waits until it is on the disk.
    bool prepare(GateFolder &folder, const QString &copy);
    bool publish();

    bool isPublished() const { return m_file.isInPlace(); }
    /// Whether a file lies in the place now.
    bool isTaken() const { return m_folder.hasFile(m_name); }
    QString errorString() const { return m_error; }

private:
    bool copy(QFile &source);
    bool fail(const QString &error);

    const QString m_path;
    const QString m_name;
    GateFolder m_folder;
    GateFile m_file;
    QString m_error;
};
