#pragma once

#include "tests/mirovahrctl/preview/previewbench.h"

#include <QString>
#include <QStringList>

class ProgramRun;

/// A site that is previewed by the program mirovahrctl, synchronised, and taken back by the client
/// program of the database.
class UndoBench : public PreviewBench {
public:
    /// A preview that writes undoPath(). What the program printed when it failed, else empty.
    QString writeUndo(const QStringList &options = {});
    QString undoPath() const { return filePath("undo.sql"); }
    /// The content of undoPath().
    QString undoText() const;
    void replaceUndoText(const QString &text);

    /// Runs undoPath() as the administrator of the database does: `mariadb DATABASE <FILE`.
    void undo(ProgramRun &client, const QStringList &clientOptions = {});
    void startUndo(ProgramRun &client, const QStringList &clientOptions = {});

    /// The whole content of the database, without the flag that forces a synchronisation.
    DatabaseState state();
};
