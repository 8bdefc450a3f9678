#pragma once

#include <QString>

class QIODevice;
struct CheckedLine;

/// The lines of an export that do not reach the database as they should, each with its reasons: a
/// text to send to HR. The lines are byte for byte those of the export; what stands around them
/// begins with "#". Whoever owns the device looks whether writing failed.
class RejectsWriter {
public:
    /// \a exportName is what HR calls the export.
    RejectsWriter(QIODevice &device, const QString &exportName);

    void begin();
    void add(const CheckedLine &line);
    void end();

private:
    void comment(const QString &text);

    QIODevice &m_device;
    const QString m_exportName;
    qint64 m_count = 0;
};
