#pragma once

#include <QMap>
#include <QSet>
#include <QString>

/// The texts that the plugin logs, found by reading its sources.
namespace SourceTexts {

/// The texts of the logging calls, with the levels that they are logged at: "warning", or "debug 2"
/// for one that appears from debug level 2 on.
QMap<QString, QSet<QString>> loggedDirectly();

/// Texts that reach a logging call through a function: the names of operations, which have "::" in
/// them, and what is put behind such a name.
QSet<QString> handedOn();

} // namespace SourceTexts
