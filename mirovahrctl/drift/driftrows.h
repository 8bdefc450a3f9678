#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

class PluginView;
class SqlSession;

/// What the database holds of its people beyond their personal data. Read once: looking everything
/// up for each person takes minutes on a large site.
struct DriftRows {
    struct Person {
        quint32 uid = 0;
        uint type = 0;
        bool isActive = false;
        qint64 written = 0; ///< Unix time: created or last changed
    };
    /// A month (yyyyMM) of a person whose calendar group is not the planned one.
    struct Month {
        uint month = 0;
        quint32 gid = 0;
        quint32 plannedGid = 0;
    };
    using Pair = QPair<quint32, quint32>;

    QHash<quint32, Person> people; ///< by pid
    QHash<Pair, qint64> members; ///< bid and uid, since when (Unix time)
    QHash<quint32, QVector<quint32>> terminals; ///< the active ones (tid) of a bid
    QSet<Pair> peopleOfTerminals; ///< tid and uid
    QHash<quint32, QVector<quint32>> administrators; ///< those (aid) of a bid
    QSet<Pair> peopleOfAdministrators; ///< aid and uid
    QHash<quint32, QVector<quint32>> requestReceivers; ///< the aids, in order, of a uid
    QHash<Pair, quint32> plan; ///< uid and first month: gid
    QHash<quint32, QVector<Month>> months; ///< of a uid
    QSet<quint32> payrollBindings; ///< uids
    QString payrollSelection; ///< the key of the selection of the only payroll export, or empty
    QSet<QString> selectedPids;
    QHash<quint32, qint64> balances; ///< of a uid, in hundredths of a day
    QVector<quint32> unmarkedTerminals; ///< with queued people, but not marked to fetch them

    /// Reads them. False when that fails; the view's session then says why.
    bool read(PluginView &view);

private:
    void readPeople(SqlSession &site);
    void readBranches(SqlSession &site);
    void readCalendars(SqlSession &site);
    void readPayroll(PluginView &view);
};
