#pragma once

#include <QDateTime>
#include <QString>

class GateFolder;

/// The dated copies of admitted files, named after the moment of their admission in UTC:
/// "admitted-20261121T051000Z.data".
class GateCopies {
public:
    explicit GateCopies(GateFolder &folder)
        : m_folder(folder)
    {
    }

    /// The name of the last admitted file in the gate's folder.
    static QString lastAdmitted();

    /// Gives an admitted file, which is never written to again, a second name. Both return false
    /// when they fail; the folder then says why.
    bool add(const QString &fileName, const QDateTime &time);
    /// Removes all but the newest \a keep copies.
    bool prune(qint64 keep);

private:
    GateFolder &m_folder;
};
