#pragma once

#include <QMap>
#include <QString>
#include <QtPlugin>

/// How the attendance server asks a plugin for a description of itself.
///
/// As with ServerInterface, the order of the virtual operations is the contract with the server.
class VerInfoInterface {
public:
    virtual ~VerInfoInterface() = default;

    /// Key and value pairs that describe the plugin (version, component type, build, database).
    virtual QMap<QString, QString> getVerInfo() const = 0;
};

Q_DECLARE_INTERFACE(VerInfoInterface, "com.vantor-la.VerInfoInterface")
