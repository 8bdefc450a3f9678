#pragma once

#include "db/groupsplanrecord.h"

#include <QObject>
#include <QSqlDatabase>

class QDate;

/// The calendar groups of people over time.
///
/// `groups_plan` says from which month on a person belongs to a group, `groups_month` which group
/// was in force in each month in which the person has attendance. The repository writes the first
/// and keeps the second in step with it. It must be used in the thread that owns its connection.
///
/// setDB() must come before every operation on the database. Neither the person nor the group of a
/// plan has to exist: an unknown id leaves a plan of nobody.
class GroupsPlanRepo : public QObject {
    Q_OBJECT

public:
    explicit GroupsPlanRepo(QObject *parent);

    /// Uses `db` for every later operation; a copy of the handle is kept.
    void setDB(const QSqlDatabase &db);

    /// Whether a successful add() or del() is followed by updateGroupsMonth(). On at first.
    void setAutoUpdateGroupsMonth(bool on);

    /// Inserts the plan row or replaces the one with the same key. False when the group or the
    /// person is 0, when the statement fails, and when the very same row was there already.
    bool add(const GroupsPlanRecord &rec);

    /// Deletes exactly this plan row. False when the group or the person is 0, when the statement
    /// fails, and when there is no such row.
    bool del(const GroupsPlanRecord &rec);

    /// Rebuilds the `groups_month` rows of person `uid` from `month` (yyyyMM) on. False when
    /// either is 0, when the statement fails, and when no row changed, as for a person without
    /// attendance since then.
    bool updateGroupsMonth(unsigned int uid, unsigned int month);

    /// The group planned for person `uid` in `month` (yyyyMM); month 0 is the database server's
    /// current one. With `fallbackToPeople` a person without a plan gets the default group of
    /// `people`. 0 when there is none or a statement fails.
    unsigned int getCurrentGid(unsigned int uid, unsigned int month, bool fallbackToPeople) const;

    /// The month (yyyyMM) of a Unix timestamp in seconds, in local time.
    static unsigned int monthFromTimestamp(unsigned int ts);

    /// The month (yyyyMM) of `date`; 0 for a null or invalid date.
    static unsigned int monthFromDate(const QDate &date);

    /// The owner's debug level; from 2 on the writing operations log their calls.
    quint8 debugLevel = 0;

private:
    bool changePlan(const char *operation, QLatin1String sql, const GroupsPlanRecord &rec);
    bool changesRows(const QString &sql, const char *operation) const;

    QSqlDatabase m_db;
    bool m_autoUpdateGroupsMonth = true;
};
