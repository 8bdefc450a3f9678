#include "tests/cluster/otherwriters.h"

namespace {

using Remedy = OtherWriter::Remedy;

/// Changes a number and changes it back.
QStringList changing(const char *table, const char *column, const char *where)
{
    const QString update =
        QStringLiteral("UPDATE `%1` SET `%2` = `%2` %4 1 WHERE %3").arg(table, column, where);
    return {update.arg('+'), update.arg('-')};
}

/// Inserts a row and deletes it.
QStringList passing(const char *table, const char *columns, const char *values)
{
    return {QStringLiteral("INSERT INTO `%1` (%2) VALUES (%3)").arg(table, columns, values),
            QStringLiteral("DELETE FROM `%1` WHERE (%2) = (%3)").arg(table, columns, values)};
}

/// Changes a text of `vars` and changes it back.
QStringList changingSetting(const char *name)
{
    const QString update = QStringLiteral("UPDATE vars SET value = %2 WHERE name = '%1'");
    return {update.arg(name, "CONCAT(value, ',')"),
            update.arg(name, "TRIM(TRAILING ',' FROM value)")};
}

QVector<OtherWriter> ofPeople()
{
    return {
        {"creating a person", "INSERT INTO people (*", passing("people", "pid", "<pid>")},
        {"updating a person", "UPDATE people SET pamId=* type=* WHERE pid=12341",
         changing("people", "editor", "uid = 4")},
        {"updating a person with a relationship state",
         "UPDATE people SET pamId=* lastCalc=* WHERE pid=10011",
         changing("people", "editor", "uid = 1")},
        {"the payroll selection",
         "EXECUTE INSERT INTO vars *selPeople*",
         changingSetting("exportPam.1.selPeople"),
         false,
         Remedy::Drift,
         {"vars name=exportPam.1.selPeople: value *,<pid> -> *,12361"}},
        {"the payroll binding",
         "INSERT INTO people_pam *",
         passing("people_pam", "uid, id", "<uid>, 2"),
         true,
         Remedy::Drift,
         {"people_pam - uid=<uid> id=1"}},
        {"a balance", "INSERT INTO funds_move *, 2, 1) *",
         passing("funds_move", "type, day, month, value, fid, uid",
                 "3, midnightFromTs(UNIX_TIMESTAMP()), monthFromTimestamp(UNIX_TIMESTAMP()), 1, 2,"
                 " 1")},
    };
}

QVector<OtherWriter> ofSupervisors()
{
    return {
        {"the former supervisor",
         "UPDATE admins_people SET request =0 WHERE uid=4 *",
         changing("admins_people", "request", "aid = 1 AND uid = 4"),
         false,
         Remedy::Drift,
         {"admins_people - aid=2 uid=4 request=1", "admins_people aid=1 uid=4: request 0 -> 1"}},
        {"the new supervisor",
         "INSERT INTO admins_people (aid, uid, request) *",
         passing("admins_people", "aid, uid", "2, <uid>"),
         false,
         Remedy::Drift,
         {"admins_people - aid=2 uid=<uid> request=1"}},
    };
}

QVector<OtherWriter> ofCalendars()
{
    return {
        {"the plan of groups", "INSERT INTO groups_plan * VALUES(23, 5, 202503) *",
         passing("groups_plan", "gid, uid, since", "12, 5, 202503")},
        {"the months of groups",
         "INSERT INTO groups_month * a.uid=5 *",
         changing("groups_month", "gid", "uid = 5"),
         true,
         Remedy::Drift,
         {"groups_month uid=5 *: gid 23 -> 12"}},
        {"the attendance",
         "UPDATE atten * uid =5",
         changing("atten", "ok", "uid = 5"),
         true,
         Remedy::Nothing,
         {"atten uid=5 date=2025-03-03*: ok -1 -> 1", "atten uid=5 date=2025-03-04*: ok -1 -> 1",
          "atten uid=5 date=2025-03-05*: ok -1 -> 1", "people uid=5: lastCalc 2025-02-28 -> *"}},
        {"the last calculation",
         "UPDATE people set lastCalc = * uid=5",
         changing("people", "editor", "uid = 5"),
         true,
         Remedy::Nothing,
         {"people uid=5: lastCalc 2025-02-28 -> *"}},
    };
}

QVector<OtherWriter> ofBranchesAndTerminals()
{
    // What the terminal server does when a terminal has fetched its data.
    const QStringList fetching = changing("term", "syn", "tid IN (1, 2)");
    return {
        {"the members of a branch", "INSERT INTO brape *",
         passing("brape", "bid, uid", "1, <uid>")},
        {"the people of a terminal",
         "INSERT INTO people_term *",
         passing("people_term", "tid, uid", "1, <uid>"),
         true,
         Remedy::Drift,
         {"people_term - tid=1 uid=<uid>",
          "term_sync - tid=1 type=I ref=people_term ref_col=uid ref_id=<uid> *"}},
        {"the people of an administrator",
         "INSERT INTO admins_people (aid, uid) *",
         passing("admins_people", "aid, uid", "1, <uid>"),
         true,
         Remedy::Drift,
         {"admins_people - aid=1 uid=<uid> request=0",
          "admins_people - aid=4 uid=<uid> request=0"}},
        {"the queue of changed people",
         "INSERT INTO `term_sync` * 'people' ref,*",
         fetching,
         true,
         Remedy::Nothing,
         {"term_sync - tid=1 type=U ref=people ref_col=uid ref_id=1 *"}},
        {"the terminals of a changed person", "CALL updateTermsSync*", fetching, false,
         Remedy::None},
        {"the queue of new people",
         "INSERT INTO `term_sync` * 'people_term' ref,*",
         changing("people", "editor", "uid = <uid>"),
         true,
         Remedy::Nothing,
         {"term_sync - tid=1 type=I ref=people_term ref_col=uid ref_id=<uid> *"}},
        {"the mark of a terminal",
         "Update `term` SET syn * tid = 2",
         fetching,
         true,
         Remedy::Drift,
         {"term tid=2: syn 2 -> 0"}},
    };
}

} // namespace

const QVector<OtherWriter> &otherWriters()
{
    static const QVector<OtherWriter> all = ofPeople() + ofSupervisors() + ofCalendars()
        + ofBranchesAndTerminals()
        + QVector<OtherWriter>{{"the forced flag", "EXECUTE INSERT INTO vars *forceSync*",
                                changingSetting("YAV.MHRWorker.forceSync"), false, Remedy::None}};
    return all;
}
