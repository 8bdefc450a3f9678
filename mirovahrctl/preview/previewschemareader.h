#pragma once

#include "mirovahrctl/preview/previewrefusal.h"
#include "mirovahrctl/preview/previewschema.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <optional>

class SqlSession;

/// Finds what a synchronisation touches in the site's database: the tables and routines of the
/// plugin, the triggers of those tables, and recursively every table or routine that a routine or
/// trigger names in its text or that a foreign key refers to.
class PreviewSchemaReader {
public:
    /// \a site: a session in the transaction that copies, not yet prepared for copying.
    explicit PreviewSchemaReader(SqlSession &site);

    /// Returns a refusal when the copy would not behave like the site's database.
    std::optional<PreviewRefusal> read();

    const PreviewSchema &schema() const { return m_schema; }

private:
    struct Entry {
        QString name;
        QString kind; ///< "BASE TABLE", "VIEW", "FUNCTION", ...
        bool transactional = true;
        qint64 rowEstimate = 0;
    };

    void readServer();
    void readDatabase();
    void readTriggerRight();
    void listTables();
    void listRoutines();
    void listTriggers();

    void requirePlugin();
    /// \a refusal says that it is missing.
    void require(const QHash<QString, Entry> &known, const QString &name, const QString &refusal);
    void takeNext();
    void takeTable(const QString &key);
    void takeRoutine(const QString &key);
    void takeTriggers(const QString &table);
    PreviewTable readTable(const Entry &entry);
    void readColumns(PreviewTable &table);
    std::optional<PreviewProgram> readProgram(const QString &kind, const QString &name);
    void requireReferences(PreviewTable &table);
    void requireNamed(PreviewProgram &program);
    void noteHiddenTriggers(const QString &table);

    void refuse(ExitStatus status, const QString &sentence);
    /// The error of the server follows the sentence.
    void refuseRead(const QString &sentence);

    SqlSession &m_site;
    PreviewSchema m_schema;
    QHash<QString, Entry> m_tables; ///< by name in lower case, as the account sees them
    QHash<QString, Entry> m_routines;
    QHash<QString, QStringList> m_triggers; ///< by table in lower case, in firing order
    QStringList m_pendingTables; ///< names in lower case, still to be taken
    QStringList m_pendingRoutines;
    QSet<QString> m_required; ///< all that were ever pending
    bool m_seesTriggers = false;
    std::optional<PreviewRefusal> m_refusal;
};
