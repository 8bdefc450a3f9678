#pragma once

#include "tests/worker/service/threadmessages.h"

#include <QCoreApplication>
#include <QPluginLoader>
#include <QSqlDatabase>

#include <memory>
#include <random>

class ServerInterface;

/// Sees which worker each thread of the program makes.
class WorkerWatchingApplication : public QCoreApplication {
public:
    using QCoreApplication::QCoreApplication;
    bool notify(QObject *receiver, QEvent *event) override;
};

/// An attendance server that uses its plugin at random, within the contract: loads, starts, stops,
/// pauses, resumes, starts again, forces a synchronisation, unloads in the middle of one. Belongs
/// to the thread that creates it.
class RandomHost {
public:
    /// \a database is not yet open; \a seed makes the sequence.
    RandomHost(const QString &library, const QSqlDatabase &database, uint seed,
               ThreadMessages &messages);
    ~RandomHost();
    RandomHost(const RandomHost &) = delete;
    RandomHost &operator=(const RandomHost &) = delete;

    void live(uint steps);
    /// Loads, forces one synchronisation and unloads.
    void settle();

private:
    void step();
    void load();
    void unload();
    void unloadWithinATick();
    void force();
    void queueTick();
    uint random(uint below) { return uint(m_random() % below); }

    const QString m_library;
    std::unique_ptr<QPluginLoader> m_loader;
    QSqlDatabase m_database;
    std::minstd_rand m_random;
    ThreadMessages &m_messages;
    ServerInterface *m_plugin = nullptr;
    uint m_debugLevel = 0;
};
