#pragma once

#include <QObject>
#include <QSqlDatabase>
#include <QStringList>

/// The queue of changes that the attendance terminals must fetch: `term_sync`.
///
/// Every operation queues one row a terminal and then sets the bit of that kind of data in
/// `term.syn`, which says which terminals the terminal server visits. The terminals are marked only
/// when the queueing statement succeeded. `type` says what happened to the row that `ref` (the
/// table) and the id name: 'I' inserted, 'U' updated, 'D' deleted. Failures are logged and not
/// returned, except by setTermSyn(). The connection must allow several statements in one text, and
/// the repository must be used in the thread that owns it.
///
/// setDB() must come before every operation. `type`, `ref` and the lists of ids go into the
/// statements as they are: the caller vouches that a list holds decimal texts, and that `ref` holds
/// no quote. An empty list makes the statement fail. Operations that name a terminal queue whether
/// or not the terminal, or the single person, interval type or time zone, exists: an unknown id
/// leaves a row that nobody fetches, or that refers to nothing.
class TermSyncRepository : public QObject {
    Q_OBJECT

public:
    explicit TermSyncRepository(QObject *parent = nullptr);

    /// Uses `db` for every later operation; a copy of the handle is kept.
    void setDB(const QSqlDatabase &db);

    /// Queues person `uid` for every active terminal that holds the person and handles people.
    void addTermSyncPerson(unsigned int uid, QChar type, const QString &ref);

    /// Queues person `uid` for terminal `tid`.
    void addTermSyncPerson(unsigned int tid, unsigned int uid, QChar type, const QString &ref);

    /// Queues those of the people `uids` who are active for terminal `tid`.
    void addTermSyncPeople(unsigned int tid, const QStringList &uids, QChar type);

    /// Queues interval type `iid` for every active terminal that holds it and handles such types.
    void addTermSyncInter(unsigned int iid, QChar type, const QString &ref);

    /// Queues interval type `iid` for terminal `tid`.
    void addTermSyncInter(unsigned int tid, unsigned int iid, QChar type, const QString &ref);

    /// Queues those of the interval types `iids` that exist for terminal `tid`.
    void addTermSyncInters(unsigned int tid, const QStringList &iids, QChar type);

    /// Queues time zone `zid` for every active terminal that holds it and handles time zones.
    void addTermSyncTimezone(unsigned int zid, QChar type, const QString &ref);

    /// Queues the assignment of time zone `zid` to person `uid` for terminal `tid`. A new
    /// assignment ('I') also queues the zone itself for every terminal that holds it.
    void addTermSyncPZT(unsigned int uid, unsigned int zid, unsigned int tid, QChar type,
                        const QString &ref);

    /// Queues the colour group of person `uid` for terminal `tid`.
    void addColorGroup(unsigned int tid, unsigned int uid);

    /// Queues the colour groups of those of the people `uids` who are active for terminal `tid`.
    void addColorGroup(unsigned int tid, const QStringList &uids);

    /// Queues the whole list of colour groups for every active terminal that handles them.
    void addColorGroupsToTermSync();

    /// Sets `bits` in the pending mask of terminal `tid`. True only when that changed the row:
    /// false when the terminal is unknown or not active, when the bits were set already, and when
    /// the statement fails.
    bool setTermSyn(unsigned int tid, unsigned short bits);

private:
    bool succeeds(const QString &sql, const char *message) const;
    void queueForTerm(unsigned int tid, unsigned short bits, const QString &sql,
                      const char *message);
    QStringList termsWithInter(unsigned int iid) const;

    QSqlDatabase m_db;
};
