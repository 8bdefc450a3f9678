#pragma once

#include "tests/support/mysqlwire.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// What the proxy does to one command on its way to the server.
struct Disturbance {
    enum class Way {
        /// Nothing, but the proxy holds the connection after the command until resume(), while the
        /// test acts.
        Forward,
        Refuse, ///< An error is the answer, and the server never gets the command.
        CutBefore, ///< The connection ends, and the server never gets the command.
        CutAfter, ///< The server carries the command out; then, unanswered, the connection ends.
        /// The server carries the command out, and the client hears no more, nor does the
        /// connection
        /// end before the client ends it. Clients that connect meanwhile are not greeted.
        Hush,
    };

    Way way = Way::Forward;
    // Of the error.
    int errorNumber = 0;
    QByteArray sqlState;
    QByteArray errorText;
    /// The server rolls the transaction back, as it does to a deadlock's victim.
    bool rollsBack = false;
};

/// Stands between a client and a MySQL server, on a socket of its own, and counts what the client
/// sends: logging in, statements, preparing, closing. One of these commands can be disturbed.
///
/// It serves one connection at a time, in a thread of its own. The wait functions block the calling
/// thread, and return false after kPatienceMs.
class MySqlProxy {
public:
    struct Command {
        /// A statement, or "CONNECT", "USE", "QUIT", "PREPARE statement", "RESET", "CLOSE",
        /// "EXECUTE statement << values" with the texts among the values.
        QString text;
        bool hasAnswer = true;
        bool carriedOut = false; ///< by the server, without an error
        int error = 0; ///< number of the error that the client or the proxy got
    };

    /// \a serverSocket: where the server listens whenever a client connects.
    explicit MySqlProxy(const QString &serverSocket);
    /// Its clients must be gone.
    ~MySqlProxy();
    MySqlProxy(const MySqlProxy &) = delete;
    MySqlProxy &operator=(const MySqlProxy &) = delete;

    QString socketPath() const;

    /// Waits until the proxy has passed on the last commands of clients that are gone: a killed
    /// process leaves one in its socket, and a closed connection its QUIT.
    bool waitUntilIdle();
    /// Counts from 1 again. Call it while the proxy is idle.
    void restartCount();
    /// Counts from 1 again, and disturbs the command of this number, once: holds it from its
    /// arrival until release(). Call it while the proxy is idle.
    void disturb(int number, const Disturbance &disturbance);
    /// The same for the first command whose text begins so.
    void disturb(const QString &text, const Disturbance &disturbance);
    bool waitForArrival();
    void release();
    /// Waits until the disturbed command is over.
    bool waitForEnd();
    void resume();

    /// Since the count began.
    QVector<Command> commands() const;

    /// Clients find no server until appear().
    void disappear();
    void appear();

private:
    using Exchange = std::function<bool(MySqlWire *client, MySqlPacket &first)>;

    void listen();
    void run();
    void setServing(bool serving);
    void serve(MySqlWire &client);
    bool logIn(MySqlWire &client, MySqlWire &server);
    bool passCommand(const MySqlPacket &request, MySqlWire &client, MySqlWire &server);
    QString textOf(const MySqlCommand &sent, const MySqlPacket &request) const;
    bool treat(const Command &command, const MySqlPacket &request, MySqlWire &client,
               MySqlWire &server, const Exchange &exchange);
    void refuse(const Disturbance &disturbance, const MySqlPacket &request, MySqlWire &client,
                MySqlWire &server);

    int arrive(const Command &command, Disturbance &disturbance);
    void leave(int index, bool carriedOut, int error);
    void holdUntilResumed(int index);
    void holdUntil(const bool &freed, std::unique_lock<std::mutex> &lock);
    bool waitUntil(const std::function<bool()> &reached);

    const QByteArray m_serverSocket;
    QTemporaryDir m_folder;
    int m_listener = -1;
    QString m_preparedText;

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QVector<Command> m_commands;
    Disturbance m_disturbance;
    int m_disturbed = 0; ///< number of the command, 0 for none
    QString m_disturbedText; ///< how a command begins that gets the number; empty for none
    bool m_arrived = false;
    bool m_released = false;
    bool m_over = false;
    bool m_resumed = false;
    bool m_serving = false;

    std::thread m_thread;
};
