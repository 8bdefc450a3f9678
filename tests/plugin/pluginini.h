#pragma once

#include <QByteArray>
#include <QString>

/// The plugin's configuration file. Its path is fixed, so a test must run in a private view of it
/// (scripts/private-view): outside of one every operation ends the program.
namespace PluginIni {

QString path();
void write(const QByteArray &content);
void remove(); ///< Also when there is none.

} // namespace PluginIni
