#pragma once

#include "mirovahrctl/site/backslash.h"
#include "worker/mirovaronrecord.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// The texts of an export in the form in which they survive the plugin's SQL statements.
///
/// The plugin puts a text between apostrophes as it is, and fills the placeholders of the statement
/// one after the other, also those that a text brings along. In the written form an apostrophe and
/// a backslash are doubled, and a placeholder such as "%1" is parted, "%' '1": to the server two
/// strings in a row are one.
namespace SqlTexts {

/// The written form of a text. A text without apostrophe, backslash and placeholder is its own.
QString written(const QString &text, Backslash backslash);

/// The text of which this is the written form: what the database gets. Nothing when it is the
/// written form of no text, because it ends its string or brings a placeholder along.
std::optional<QString> meant(const QString &text, Backslash backslash);

/// The same for people to read: a text that is no written form as it is.
QString shown(const QString &text, Backslash backslash);
/// A record with its texts so.
MirovaRonRecord shown(MirovaRonRecord record, Backslash backslash);

/// A line of an export with those of its texts written that reach a statement, all other bytes as
/// they are. A line that does not have all fields is returned unchanged.
QByteArray writtenLine(const QByteArray &line, Backslash backslash);

/// How the texts of an export get into the database.
struct Route {
    /// The form in which the gate writes them before the plugin reads them; nothing when the plugin
    /// reads the export as it is.
    std::optional<Backslash> gate;
    /// What a backslash is to the server that gets them.
    Backslash server = Backslash::Escapes;

    /// A line of the export as the plugin reads it.
    QByteArray atPlugin(const QByteArray &line) const
    {
        return gate ? writtenLine(line, *gate) : line;
    }
};

} // namespace SqlTexts
