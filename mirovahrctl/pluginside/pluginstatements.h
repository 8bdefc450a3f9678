#pragma once

#include <QString>
#include <QVector>

/// Ids of the site for the statements of one person: the server plans for the rows that it finds.
struct StatementValues {
    quint32 uid = 1;
    quint32 pid = 1;
    quint32 bid = 1;
    quint32 calendar = 1; ///< of a calendar group of that branch
    quint32 fid = 0; ///< the vacation fund; 0 for none: the plugin leaves balances alone then
};

/// What a statement of the plugin reads.
struct PluginStatement {
    enum class Sent { ForEachPerson, ForEachBranch };

    QString query; ///< a SELECT that finds the same rows in the same way
    Sent sent;
};

/// The statements that find rows, of those that a synchronisation sends for a new or changed person
/// and for the branch that the person joins. They come from the plugin's own code, which runs on a
/// StatementTap here.
///
/// The routines of the database find rows, too. `getCurrentGid` does so by a statement that is
/// among these; `updateTermsSync` finds the terminals of a person, as does the statement that
/// queues a change for them.
QVector<PluginStatement> pluginStatements(const StatementValues &values);

/// A SELECT that finds the rows that a statement updates, or that an INSERT … SELECT reads: the
/// server explains it to an account that only reads, too. Empty for a statement that finds no rows.
QString queryOf(const QString &statement);
