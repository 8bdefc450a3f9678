#pragma once

#include <QString>

class QIODevice;
struct CheckedLine;

/// Writes the lines of an export that do not reach the database as they should, each below its
/// reasons: a text to send to HR. The lines are byte for byte those of the export; every other line
/// begins with "#". The owner of the device checks whether writing failed.
class RejectsWriter {
public:
    /// \a exportName is what HR calls the export.
    RejectsWriter(QIODevice &device, const QString &exportName);

    /// Writes the heading.
    void begin();
    /// Writes one line, with its errors and warnings above it.
    void add(const CheckedLine &line);
    /// Writes how many lines there were.
    void end();

private:
    void comment(const QString &text);

    QIODevice &m_device;
    const QString m_exportName;
    qint64 m_count = 0;
};
