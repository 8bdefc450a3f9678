#pragma once

#include "privatedb/boundprocess.h"

class ServerFolder;

/// One of MariaDB's programs at work for a private server, which never outlives this program.
/// It has its temporary files in the server's folder.
class MariaDbProcess : public BoundProcess {
    Q_OBJECT
public:
    /// \a folder must live longer than the process.
    MariaDbProcess(const ServerFolder &folder, Group group, QObject *parent = nullptr);

protected:
    void setupChildProcess() override;

private:
    const ServerFolder &m_folder;
};
