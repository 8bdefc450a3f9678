#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// A statement of the plugin that writes, and somebody who changes the same rows through another
/// node: the attendance server, a terminal server, an administrator.
struct OtherWriter {
    /// What brings home what the plugin could not write.
    enum class Remedy {
        None, ///< none is needed: the same or a later tick writes it
        Force, ///< a forced synchronisation of the same export
        Drift, ///< then the statements of mirovahrctl drift
        Nothing, ///< the database does not show what is missing
    };

    const char *name;
    /// Fits the statement of FaultCycle, "*" stands for any text. The first that fits is disturbed.
    QString statement;
    /// A transaction that changes the rows and puts them back, so that what differs afterwards is
    /// what the plugin could not write. "<pid>" and "<uid>" are the new employee's.
    QStringList changes;
    /// Whether the server repeats the statement (wsrep_retry_autocommit).
    bool isRepeated = true;
    Remedy remedy = Remedy::Force;
    /// The differences that remain after a forced synchronisation, "*" stands for any text.
    QStringList remaining = {};
};

/// One for each kind of statement that FaultCycle writes with, but COMMIT.
const QVector<OtherWriter> &otherWriters();
