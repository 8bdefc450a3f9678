#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// yavhost.service, as systemd knows it.
struct Service {
    QString activeState; ///< such as "active" or "failed"
    QString unitFileState; ///< such as "enabled" or "disabled"
    QString user; ///< empty: root
    bool isStrict = false; ///< writes only where ReadWritePaths lets it (ProtectSystem=strict)
    QStringList writablePaths; ///< of ReadWritePaths
    bool hasOwnTmp = false; ///< other folders /tmp and /var/tmp than the machine's (PrivateTmp)
    bool hidesHomes = false; ///< sees nothing of the users' folders (ProtectHome)
    QStringList boundPaths; ///< of BindPaths and BindReadOnlyPaths, as the service sees them

    /// Asks systemctl. Nothing when there is no such service, or no systemd.
    static std::optional<Service> load();

    bool runs() const { return activeState == QLatin1String("active"); }
    /// Whether it should run: it is enabled, or was started and ended.
    bool isWanted() const;
    /// Why the service sees something else, or nothing, under the path of a file or folder, a
    /// sentence without its full stop; empty when it sees what everybody does.
    QString whyNotSeeing(const QString &file) const;
    /// Why the service cannot create and remove files in a folder, a sentence without its full
    /// stop; empty when it can.
    QString whyNotWriting(const QString &folder) const;
};
