#pragma once

#include "mirovahrctl/pluginside/linecutter.h"

#include <QIODevice>
#include <QString>

#include <memory>

/// One log: a file, compressed with gzip, xz or zstd or not at all, or standard input.
class LogSource {
public:
    /// The path that stands for standard input.
    static constexpr char kStandardInput[] = "-";

    /// The program that unpacks a log that begins so; empty for one that is not compressed.
    static QString unpacker(const QByteArray &beginning);

    explicit LogSource(QString path);

    /// Visits the lines from the first one on. False when the log cannot be read to its end;
    /// errorString() then says why.
    bool forEachLine(const LineCutter::Visitor &visit);

    QString errorString() const { return m_error; }

private:
    bool isStandardInput() const { return m_path == QLatin1String(kStandardInput); }
    std::unique_ptr<QIODevice> open();
    std::unique_ptr<QIODevice> decompress(const QString &program);
    bool finish(QIODevice &device);
    bool fail(const QString &reason);

    const QString m_path;
    QString m_error;
};
