#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/// Fits a whole text, in which "*" stands for any text, "#" for a uid and "&" for a terminal.
QRegularExpression wildcard(const QString &pattern);

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
    QString line; ///< of StateChanges::between(undisturbed, disturbed), for wildcard()
    /// Commands, of which one was not carried out; "@" is the pid of the person with the line's
    /// uid.
    QStringList causes;
    QString reason;

    bool explains(const QString &line, const QStringList &notCarriedOut) const;
};

const QVector<Difference> &differences();

/// Listed among the commands that were not carried out when a new process repeated the cycle.
const QString &newProcess();
