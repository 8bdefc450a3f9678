#pragma once

#include <QString>
#include <QtGlobal>

#include <string_view>

/// Errors in the plugin's log that pass by themselves, and with them what the statement was to
/// write: deadlocks, timeouts of locks, lost connections, refusals of a cluster's node.
namespace Interruptions {

/// Whether a text of the plugin has such an error. Not every text has the server's number.
bool isIn(std::string_view text);

/// Whether a line of a log, with whatever stands before the plugin's text, is such an error.
bool isLoggedIn(std::string_view line);

/// That so many statements failed so, a whole sentence.
QString sentence(qint64 count);

} // namespace Interruptions
