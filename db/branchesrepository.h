#pragma once

#include "db/basdata.h"
#include "db/branchrecord.h"

#include <QObject>
#include <QSet>
#include <QSqlDatabase>
#include <QStringList>
#include <QVector>

class QSqlQuery;
class TermSyncRepository;

/// Branches and what belongs to them: people, terminals, administrators, sections and
/// branch–attribute–section triples.
///
/// A signal announces every membership change that succeeds. The repository can connect these
/// signals to its own slots, which propagate the change to the terminals and administrators of the
/// branch; they then run inside the changing operation. Failures are logged and returned;
/// nothing is undone. The repository must be created and used in the thread that owns its
/// connection. Affected rows must mean changed rows, so the connection must not be opened with
/// CLIENT_FOUND_ROWS.
///
/// setDB() must come before every operation. Lists of ids and the texts of a branch go into the
/// statements as they are: the caller vouches that a list holds decimal ids and commas only, and
/// that no text holds a quote. No operation checks that its branch exists, and those for a single
/// terminal or administrator do not check that either: an unknown id leaves rows that belong to
/// nothing.
class BranchesRepository : public QObject {
    Q_OBJECT

public:
    /// `connectAdded` carries additions to a branch on to its terminals and administrators,
    /// `connectDeleted` removals.
    BranchesRepository(QObject *parent, bool connectAdded, bool connectDeleted);

    /// Uses `db` for every later operation, also of the terminal queue; a copy is kept.
    void setDB(const QSqlDatabase &db);

    /// Inserts the branch; its bid is ignored. The new id, or 0 when the name is empty or the
    /// statement fails. Ids travel as 16-bit values: one that does not fit is cut.
    ushort addBranch(const BranchRecord &branch);

    /// Updates the branch with the record's bid. The rows changed: 0 when none, -1 when the
    /// statement fails.
    int updateBranch(const BranchRecord &branch);

    /// Inserts a branch with bid 0, updates any other. False when the insert failed or the update
    /// changed nothing; a failed update reports true.
    bool saveBranch(const BranchRecord &branch);

    /// Branches are not deleted: does nothing and returns false.
    bool deleteBranch(ushort bid);

    /// Puts the people `uids` (comma-separated) into branch `bid`; who is there already gets a new
    /// time of joining, who is unknown is left out. This and the other membership operations
    /// return false, and announce nothing, when the branch is 0 or the list empty (no statement
    /// runs then), when the statement fails and when it changed no row.
    bool addPeopleToBranch(ushort bid, const QString &uids);

    /// Takes the people `uids` out of branch `bid`.
    bool delPeopleFromBranch(ushort bid, const QString &uids);

    /// Makes `bid` the branch of the terminals `tids`.
    bool addBranchToTerms(ushort bid, const QString &tids);

    /// Leaves the terminals `tids` without a branch, whichever they had.
    bool delBranchFromTerms(ushort bid, const QString &tids);

    /// Lets the administrators `aids` serve branch `bid`.
    bool addAdminsToBranch(ushort bid, const QString &aids);

    /// Ends the service of the administrators `aids` for branch `bid`.
    bool delAdminsFromBranch(ushort bid, const QString &aids);

    /// Moves the sections `secids` to branch `bid`.
    bool addSectionsToBranch(ushort bid, const QString &secids);

    /// Takes the sections `secids`, and their triples, away from branch `bid`. The result is that
    /// of the sections alone.
    bool delSectionsFromBranch(ushort bid, const QString &secids);

    /// Stores the triple, whether or not its parts exist; one that is stored already stays. False
    /// when the statement fails.
    bool addBAS(const BASData &triple);

    /// Deletes the triple, if it is there. False when the statement fails.
    bool deleteBAS(const BASData &triple);

    /// Stores the triples given as "bid-attrid-secid"; a text without exactly three parts is
    /// skipped. False when a statement fails; the rest is then not stored.
    bool addBAS(const QStringList &triples);

    /// Deletes the triples given as "bid-attrid-secid", read as by addBAS().
    bool deleteBAS(const QStringList &triples);

    /// The terminals of branch `bid` that are not switched off; empty when the statement fails, as
    /// for every lookup.
    QVector<unsigned int> getTids4Branch(ushort bid) const;

    /// The administrators of branch `bid`.
    QVector<unsigned int> getAids4Branch(ushort bid) const;

    /// The people of branch `bid`.
    QVector<unsigned int> getUids4Branch(ushort bid) const;

    /// The administrators of all branches that person `uid` belongs to.
    QSet<unsigned int> getAids4Uid(unsigned int uid) const;

    /// Registers the people `uids` (decimal texts; what is not a positive number is skipped) in
    /// terminal `tid` and queues them for it. Also registers people who do not exist. True also
    /// when nobody is left to register; false when the statement fails.
    bool addPeopleToTerm(unsigned int tid, const QStringList &uids);

    /// Removes the people `uids` from terminal `tid` and queues that for it. False when the
    /// statement fails, as it does for an empty list.
    bool deletePeopleFromTerm(unsigned int tid, const QStringList &uids);

    /// Lets administrator `aid` handle the people `uids`, read as by addPeopleToTerm() and likewise
    /// also those who do not exist. True also when nobody is left; false when the statement fails.
    bool addPeopleToAdmin(ushort aid, const QStringList &uids);

    /// Takes the people `uids` away from administrator `aid`. False when the statement fails, as it
    /// does for an empty list.
    bool deletePeopleFromAdmin(ushort aid, const QStringList &uids);

    /// Takes person `uid` away from administrator `aid`. False when the statement fails.
    bool deletePeopleFromAdmin(ushort aid, unsigned int uid);

    /// addPeopleToTerm() for every terminal of branch `bid`. True when all succeeded.
    bool AddPeopleToTerms(ushort bid, const QStringList &uids);

    /// Lets every administrator of branch `bid` handle the people `uids`, in one statement. False
    /// when it fails.
    bool AddPeopleToAdmins(ushort bid, const QStringList &uids);

    /// deletePeopleFromTerm() for every terminal of branch `bid`. True when all succeeded.
    bool deletePeopleFromTerms(ushort bid, const QStringList &uids);

    /// Takes the people `uids`, who have left branch `bid`, away from its administrators, except
    /// from those they still have through another branch. True when all statements succeeded.
    bool deletePeopleFromAdmins(ushort bid, const QStringList &uids);

    /// The owner's debug level; not 0 logs every call.
    quint8 debugLevel = 0;

Q_SIGNALS:
    /// The people `uids` (comma-separated, as the caller gave them) have joined branch `bid`.
    void sigAddedPeopleToBranch(ushort bid, const QString &uids);
    /// The people `uids` have left branch `bid`.
    void sigDeletedPeopleFromBranch(ushort bid, const QString &uids);
    /// The terminals `tids` now belong to branch `bid`.
    void sigAddedBranchToTerms(ushort bid, const QString &tids);
    /// The terminals `tids` no longer belong to a branch; `bid` is the one the caller named.
    void sigDeletedBranchFromTerms(ushort bid, const QString &tids);
    /// The administrators `aids` now serve branch `bid`.
    void sigAddedAdminsToBranch(ushort bid, const QString &aids);
    /// The administrators `aids` no longer serve branch `bid`.
    void sigDeletedAdminsFromBranch(ushort bid, const QString &aids);
    /// The sections `secids` now belong to branch `bid`.
    void sigAddedSectionsToBranch(ushort bid, const QString &secids);
    /// The sections `secids` no longer belong to branch `bid`.
    void sigDeletedSectionsFromBranch(ushort bid, const QString &secids);

public Q_SLOTS:
    /// Registers new people of branch `bid` in its terminals and with its administrators. True
    /// when both succeeded; false when the branch is 0 or no id is given.
    bool slotAddedPeopleToBranch(ushort bid, const QString &uids);

    /// Removes people who left branch `bid` from its terminals and administrators. Result as of
    /// slotAddedPeopleToBranch().
    bool slotDeletedPeopleFromBranch(ushort bid, const QString &uids);

    /// Registers the people of branch `bid` in its new terminals `tids`. True when all succeeded.
    bool slotAddedBranchToTerms(ushort bid, const QString &tids);

    /// Removes the people of branch `bid` from the terminals `tids`. True when all succeeded.
    bool slotDeletedBranchFromTerms(ushort bid, const QString &tids);

    /// Lets the new administrators `aids` handle the people of branch `bid`. True when all
    /// succeeded.
    bool slotAddedAdminsToBranch(ushort bid, const QString &aids);

    /// Takes the people of branch `bid` away from the administrators `aids`, also those whom an
    /// administrator has through another branch. True when all succeeded.
    bool slotDeletedAdminsFromBranch(ushort bid, const QString &aids);

private:
    using BranchSignal = void (BranchesRepository::*)(ushort bid, const QString &ids);
    using PeopleOperation = bool (BranchesRepository::*)(ushort bid, const QStringList &uids);

    static bool failed(const QSqlQuery &query, const char *operation);
    void logCall(const char *operation, unsigned int id) const;
    void logCall(const char *operation, unsigned int id, const QString &ids) const;
    bool executes(const QString &sql, const char *operation) const;
    QVector<unsigned int> selectIds(const QString &sql, const char *operation) const;

    bool beginChange(const char *operation, ushort bid, const QString &ids) const;
    bool applyChange(const char *operation, const QString &sql, ushort bid, const QString &ids,
                     BranchSignal announce);
    bool changeMembers(const char *operation, const QString &sql, ushort bid, const QString &ids,
                       BranchSignal announce);

    bool beginTriples(QSqlQuery &query, const char *operation, QLatin1String sql,
                      const QString &triples) const;
    bool changeTriple(const char *operation, QLatin1String sql, const BASData &triple);
    bool changeTriples(const char *operation, QLatin1String sql, const QStringList &triples);

    bool insertPeopleOfAdmins(const QString &tuples);
    bool propagatePeople(const char *operation, ushort bid, const QString &uids,
                         PeopleOperation toTerms, PeopleOperation toAdmins);

    TermSyncRepository *m_termSync;
    QSqlDatabase m_db;
};
