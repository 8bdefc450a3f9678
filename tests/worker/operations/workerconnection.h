#pragma once

#include <QSqlDatabase>

/// The connection of the worker of a WorkerTest.
QSqlDatabase workerConnection();

constexpr qint64 kFrozenTime = 1700000000;
/// From now on UNIX_TIMESTAMP() gives kFrozenTime to the worker.
void freezeTime();
