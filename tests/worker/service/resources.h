#pragma once

#include <QString>

class TestDatabase;

/// What the program and its server hold at a moment.
struct Resources {
    qint64 heap = 0; ///< Bytes in use; 0 under a sanitizer, which has a heap of its own.
    qint64 resident = 0; ///< Bytes of memory.
    int handles = 0; ///< Open files.
    int threads = 0;
    int connections = 0; ///< Of the server.
    int statements = 0; ///< Prepared ones of the server.

    static Resources now(TestDatabase &db);

    QString text() const;
};
