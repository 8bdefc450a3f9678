#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What the worker makes of an export, as its log shows it at debug level 3: for each line that it
/// parses "D MHRWorker::parseLine('...')", with the warning when it is skipped, then for each
/// record that it takes over "D MHRWorker::doSyncRecord(...)". There is no database behind it.
namespace WorkerReading {

/// Of a file with this content.
QStringList ofContent(const QByteArray &content);

/// Of the file at this path.
QStringList ofFile(const QString &path);

/// The same log as the plain reading of the content demands it.
QStringList demanded(const QByteArray &content);

} // namespace WorkerReading
