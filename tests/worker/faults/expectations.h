#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the log says when a command fails.
struct Reaction {
    QRegularExpression command; ///< fits its text
    /// How the line begins that reports the failure itself; empty where there is none.
    QString own;
    /// How the lines begin that the failure may cause besides.
    QStringList further;

    bool expects(const QString &line) const;
};

/// Of every command of the cycle.
const QVector<Reaction> &reactions();
/// Of the command with this text.
const Reaction &reactionTo(const QString &command);

/// A lasting difference from the database after an undisturbed run, and why it is inevitable.
struct Difference {
    // "*" stands for any text, "#" for a person's uid, "@" for the same person's pid, "&" for a
    // terminal.
    QString line; ///< of StateChanges::between(undisturbed, disturbed)
    QStringList causes; ///< Commands, of which one was not carried out.
    QString reason;

    bool explains(const QString &line, const QStringList &notCarriedOut) const;
};

const QVector<Difference> &differences();

/// Listed among the commands that were not carried out when a new process repeated the cycle.
const QString &newProcess();
