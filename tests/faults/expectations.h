#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the log says when a command fails.
struct Reaction {
    QRegularExpression command; ///< fits its text
    /// How the line begins that tells of the failure itself; empty where there is none.
    QString own;
    /// How further lines begin that the failure may lead to.
    QStringList further;
};

/// Of every command of the cycle.
const QVector<Reaction> &reactions();
/// Of the command with this text.
Reaction reactionTo(const QString &command);

/// How the database may differ for good from that of an undisturbed run, and why it must.
struct Difference {
    QRegularExpression line; ///< fits the line of StateChanges::between(undisturbed, disturbed)
    QRegularExpression cause; ///< fits a command that was not carried out, or one too many
    QString reason;
};

const QVector<Difference> &differences();
