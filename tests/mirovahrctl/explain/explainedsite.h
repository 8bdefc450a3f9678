#pragma once

#include "tests/mirovahrctl/program/toolrun.h"
#include "tests/support/exportfile.h"
#include "tests/support/testdatabase.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// A site for the tests of explain: its database, seen with the account that only reads, an export
/// and an INI file.
class ExplainedSite {
public:
    explicit ExplainedSite(TestDatabase &database);

    /// Sets the account's password. To be called after the database has started.
    void unlockAccount();

    ExportFile &exportFile() { return m_export; }
    /// The content of the INI file besides the path of the export.
    void configure(const QByteArray &content);
    QString configurationPath() const { return m_folder.filePath(QStringLiteral("MirovaHR.ini")); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    /// The options that name the database.
    QStringList connection();
    /// explain as JSON.
    ToolRun explain(const QString &person, const QStringList &more = {});

    /// The sentences of a section of a run.
    static QStringList sentences(const ToolRun &run, const QString &section);
    /// The names of the sections in their order.
    static QStringList sections(const ToolRun &run);
    /// The rows of a table, each cell as text.
    static TableRows table(const ToolRun &run, const QString &section, const QString &id,
                           const QStringList &columns);
    static QJsonObject facts(const ToolRun &run);
    static QString verdict(const ToolRun &run);
    static QStringList messages(const ToolRun &run);

private:
    TestDatabase &m_database;
    ExportFile m_export;
    QTemporaryDir m_folder;
};
