#pragma once

#include "privatedb/boundprocess.h"

class ServerFolder;

/// One of MariaDB's programs at work for a private server, which never outlives this program.
///
/// It knows nothing of the machine's other servers and of the service manager, has its temporary
/// files in the server's folder, and writes no core file, which would hold rows of people.
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
