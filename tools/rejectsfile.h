#pragma once

#include <QSaveFile>
#include <QString>

struct CheckedLine;

/// The lines of an export that do not reach the database as they should, each with its reasons: a
/// text file to send to HR. The lines are byte for byte those of the export; what stands around
/// them begins with "#".
class RejectsFile {
public:
    /// \a exportName is what HR calls the export.
    RejectsFile(const QString &path, const QString &exportName);

    /// All return false when the file cannot be written; errorString() then says why.
    bool open();
    void add(const CheckedLine &line);
    /// Puts the file in its place, also when it has no lines.
    bool commit();

    QString path() const { return m_file.fileName(); }
    QString errorString() const { return m_file.errorString(); }

private:
    void comment(const QString &text);

    QSaveFile m_file;
    const QString m_exportName;
    qint64 m_count = 0;
};
