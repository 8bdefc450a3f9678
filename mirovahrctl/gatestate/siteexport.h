#pragma once

#include "mirovahrctl/gatestate/gatestatus.h"

#include <QFile>
#include <QString>

#include <optional>

struct Configuration;

/// The export of a site: the one that is named, or else the one that the plugin reads or that the
/// gate admitted last. The plugin may remove an export after reading it; the gate keeps a copy.
class SiteExport {
public:
    enum class Source { None, Named, ImportFile, Gate };

    /// Which one is taken when none is named and both are there.
    enum class Preference {
        ImportFile, ///< what the plugin will read next
        Admitted ///< what the gate let pass last
    };

    /// Opens it. \a named and \a gateFolder may be empty; the gate's folder is then that of the
    /// configuration's syncCommand, if that runs a gate. False when a file that is there, or was
    /// named, cannot be used; errorString() then says why, a sentence without its full stop.
    bool open(const QString &named, const QString &gateFolder, const Configuration &configuration,
              Preference preference);

    Source source() const { return m_source; }
    /// A stable word for scripts: "named", "importFile", "gate" or "none".
    QString sourceWord() const;
    /// The open file, at its beginning. Only when there is a source.
    QFile &file() { return m_file; }
    QString path() const { return m_path; }
    /// Where the plugin reads its export.
    QString importFile() const { return m_importFile; }

    /// Whether the gate's folder was found in the configuration.
    bool isGateOfCommand() const { return m_isGateOfCommand; }
    /// Why the gate of the configuration cannot be used; empty when it can, or there is none.
    QString gateError() const { return m_gateError; }
    /// The status of the gate's last run, as far as it can be read.
    const std::optional<GateStatus> &gateStatus() const { return m_gateStatus; }

    /// How the gate writes the texts of this file before the plugin reads them; nothing when the
    /// plugin reads them as they are here.
    std::optional<Backslash> gateTexts() const;

    /// Why open() failed.
    QString errorString() const { return m_error; }

private:
    bool openFile(const QString &path, Source source);
    bool openImportFile();
    bool openAdmitted(const QString &gateFolder, const Configuration &configuration);
    bool openGate(const QString &folder);
    void openGateOfCommand(const QString &command);
    bool fail(const QString &error);

    QFile m_file;
    QString m_path;
    QString m_importFile;
    QString m_error;
    QString m_gateError;
    Source m_source = Source::None;
    bool m_isGateOfCommand = false;
    std::optional<GateStatus> m_gateStatus;
};
