#pragma once

#include <QIODevice>
#include <QString>

#include <functional>
#include <memory>
#include <string_view>

/// One log: a file, compressed with gzip, xz or zstd or not at all, or standard input.
class LogSource {
public:
    /// Bytes of a line; the rest of a longer one is left out.
    static constexpr int kLongestLine = 64 * 1024;

    /// \a path: empty for standard input.
    explicit LogSource(QString path);

    /// Gets a line without its line feed. Returns whether to go on.
    using Visitor = std::function<bool(std::string_view line)>;

    /// Visits the lines from the first one on. False when the log cannot be read to its end;
    /// errorString() then says why.
    bool forEachLine(const Visitor &visit);

    QString errorString() const { return m_error; }

private:
    std::unique_ptr<QIODevice> open();
    std::unique_ptr<QIODevice> decompress(const char *program);
    bool finish(QIODevice &device);
    bool fail(const QString &reason);

    const QString m_path;
    QString m_error;
};
