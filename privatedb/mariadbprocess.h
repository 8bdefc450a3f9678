#pragma once

#include "privatedb/boundprocess.h"

class ServerFolder;

/// A process of one of MariaDB's programs for a private server. It never outlives this program.
///
/// It cannot reach the machine's other servers or the service manager, keeps its temporary files in
/// the server's folder, and writes no core file, which would contain rows of people.
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
