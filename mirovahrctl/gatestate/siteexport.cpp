#include "mirovahrctl/gatestate/siteexport.h"

#include "cli/systemmessage.h"
#include "cli/text.h"
#include "mirovahrctl/gatestate/gatecopies.h"
#include "mirovahrctl/gatestate/gatefolder.h"
#include "mirovahrctl/gatestate/gateoptions.h"
#include "mirovahrctl/gatestate/gatestatus.h"
#include "plugin/configuration.h"
#include "worker/importfile.h"

#include <QDir>

bool SiteExport::open(const QString &named, const QString &gateFolder,
                      const Configuration &configuration, Preference preference)
{
    m_importFile = ImportFile::path(configuration.importFile);
    if (!named.isEmpty() && !gateFolder.isEmpty())
        return fail(Text::tr("Name either FILE or --gate-folder"));
    if (!named.isEmpty()) {
        return openFile(named, Source::Named)
            || (m_error.isEmpty() && fail(Text::tr("There is no file '%1'").arg(named)));
    }
    if (preference == Preference::Admitted) {
        return openAdmitted(gateFolder, configuration)
            && (m_source != Source::None || openImportFile());
    }
    return openImportFile()
        && (m_source != Source::None || openAdmitted(gateFolder, configuration));
}

/// True also when there is none, without a source then.
bool SiteExport::openImportFile()
{
    return openFile(m_importFile, Source::ImportFile) || m_error.isEmpty();
}

/// True also when no gate is named and that of the configuration cannot be used.
bool SiteExport::openAdmitted(const QString &gateFolder, const Configuration &configuration)
{
    if (!gateFolder.isEmpty())
        return openGate(gateFolder);
    openGateOfCommand(configuration.syncCommand);
    return true;
}

QString SiteExport::sourceWord() const
{
    switch (m_source) {
    case Source::None:
        return QStringLiteral("none");
    case Source::Named:
        return QStringLiteral("named");
    case Source::ImportFile:
        return QStringLiteral("importFile");
    case Source::Gate:
        return QStringLiteral("gate");
    }
    Q_UNREACHABLE();
}

std::optional<Backslash> SiteExport::gateTexts() const
{
    // The gate keeps HR's own bytes.
    return m_source == Source::Gate && m_gateStatus ? m_gateStatus->admittedTexts() : std::nullopt;
}

/// False also when there is none, without an error then.
bool SiteExport::openFile(const QString &path, Source source)
{
    QString error;
    switch (ImportFile::open(path, m_file, error)) {
    case ImportFile::Opening::Done:
        m_path = path;
        m_source = source;
        return true;
    case ImportFile::Opening::NotFound:
        return false;
    case ImportFile::Opening::Failed:
        return fail(Text::tr("'%1' cannot be opened: %2").arg(path, systemMessage(error)));
    }
    Q_UNREACHABLE();
}

bool SiteExport::openGate(const QString &folder)
{
    GateFolder gate;
    bool missing = false;
    if (!gate.open(folder))
        return fail(gate.errorString());
    m_path = gate.pathOf(GateCopies::lastAdmitted());
    if (!gate.openForReading(GateCopies::lastAdmitted(), m_file, missing)) {
        return fail(
            missing ? Text::tr("The gate has admitted no file yet: there is no '%1'").arg(m_path)
                    : gate.errorString());
    }
    m_source = Source::Gate;
    QString ignored;
    m_gateStatus = GateStatus::read(gate.pathOf(GateStatus::fileName()), ignored);
    return true;
}

void SiteExport::openGateOfCommand(const QString &command)
{
    const auto gate = GateOptions::ofCommand(command);
    if (!gate)
        return;
    m_isGateOfCommand = true;
    if (!gate->publishesTo(m_importFile)) {
        m_gateError =
            Text::tr("The gate of syncCommand publishes to %1, where the plugin does not read")
                .arg(gate->to);
    } else if (QDir::isRelativePath(gate->stateFolder)) {
        m_gateError = Text::tr("The gate of syncCommand has the folder %1, and where that is "
                               "depends on the attendance server")
                          .arg(gate->stateFolder);
    } else if (!openGate(gate->stateFolder)) {
        m_gateError = std::exchange(m_error, QString());
    }
}

bool SiteExport::fail(const QString &error)
{
    m_error = error;
    return false;
}
