#include "db/branchesrepository.h"

#include "db/placeholders.h"
#include "db/sqlstatement.h"
#include "db/termsyncrepository.h"

#include <QSqlQuery>
#include <QVariant>

namespace {

const QLatin1String kInsert(
    "INSERT INTO `branches` (`number`, `name`, `address`, `note`, `wh1b`, `wh1e`, `wh2b`, `wh2e`,"
    " `wh3b`, `wh3e`, `wh4b`, `wh4e`, `wh5b`, `wh5e`, `wh6b`, `wh6e`, `wh7b`, `wh7e`, `mgid`)"
    " VALUES (%1, '%2', '%3', '%4', %5, %6, %7, %8, %9, %10, %11, %12, %13, %14, %15, %16, %17,"
    " %18, %19);");
const QLatin1String kUpdate(
    "UPDATE `branches` SET `name`='%1', `address`='%2', `note`='%3', `wh1b`=%4, `wh1e`=%5,"
    " `wh2b`=%6, `wh2e`=%7, `wh3b`=%8, `wh3e`=%9, `wh4b`=%10, `wh4e`=%11, `wh5b`=%12,"
    " `wh5e`=%13, `wh6b`=%14, `wh6e`=%15, `wh7b`=%16, `wh7e`=%17,`number` = %18, `mgid`= %19"
    " WHERE bid = %20");

QString numberOrNull(quint32 number)
{
    return number != 0 ? QString::number(number) : QStringLiteral("NULL");
}

QStringList dayTexts(quint16 begin, quint16 end)
{
    if (begin == 0 && end == 0)
        return {QStringLiteral("NULL"), QStringLiteral("NULL")};
    return {QString::number(begin), QString::number(end)};
}

QStringList workingHours(const BranchRecord &branch)
{
    return dayTexts(branch.wh1b, branch.wh1e) + dayTexts(branch.wh2b, branch.wh2e)
        + dayTexts(branch.wh3b, branch.wh3e) + dayTexts(branch.wh4b, branch.wh4e)
        + dayTexts(branch.wh5b, branch.wh5e) + dayTexts(branch.wh6b, branch.wh6e)
        + dayTexts(branch.wh7b, branch.wh7e);
}

QString insertStatement(const BranchRecord &branch)
{
    return Placeholders::filled(
        kInsert,
        QStringList{numberOrNull(branch.number), branch.name, branch.address, branch.note}
            + workingHours(branch) + QStringList{numberOrNull(branch.mgid)});
}

QString updateStatement(const BranchRecord &branch)
{
    return Placeholders::filled(
        kUpdate,
        QStringList{branch.name, branch.address, branch.note} + workingHours(branch)
            + QStringList{numberOrNull(branch.number), numberOrNull(branch.mgid),
                          QString::number(branch.bid)});
}

} // namespace

BranchesRepository::BranchesRepository(QObject *parent, bool connectAdded, bool connectDeleted)
    : QObject(parent)
    , m_termSync(new TermSyncRepository(this))
{
    using Repo = BranchesRepository;
    if (connectAdded) {
        connect(this, &Repo::sigAddedPeopleToBranch, this, &Repo::slotAddedPeopleToBranch);
        connect(this, &Repo::sigAddedBranchToTerms, this, &Repo::slotAddedBranchToTerms);
        connect(this, &Repo::sigAddedAdminsToBranch, this, &Repo::slotAddedAdminsToBranch);
    }
    if (connectDeleted) {
        connect(this, &Repo::sigDeletedPeopleFromBranch, this, &Repo::slotDeletedPeopleFromBranch);
        connect(this, &Repo::sigDeletedBranchFromTerms, this, &Repo::slotDeletedBranchFromTerms);
        connect(this, &Repo::sigDeletedAdminsFromBranch, this, &Repo::slotDeletedAdminsFromBranch);
    }
}

void BranchesRepository::setDB(const QSqlDatabase &db)
{
    m_db = db;
    m_termSync->setDB(db);
}

ushort BranchesRepository::addBranch(const BranchRecord &branch)
{
    if (branch.name.isEmpty()) {
        qWarning("BranchesRepository::addBranch() -  branch name can not be empty!");
        return 0;
    }
    const QSqlQuery query = SqlStatement::run(m_db, insertStatement(branch));
    if (failed(query, "BranchesRepository::addBranch"))
        return 0;
    return ushort(query.lastInsertId().toULongLong());
}

int BranchesRepository::updateBranch(const BranchRecord &branch)
{
    const QSqlQuery query = SqlStatement::run(m_db, updateStatement(branch));
    if (failed(query, "BranchesRepository::updateBranch"))
        return -1;
    return qMax(query.numRowsAffected(), 0);
}

bool BranchesRepository::saveBranch(const BranchRecord &branch)
{
    if (branch.bid == 0)
        return addBranch(branch) != 0;
    // A failed update (-1) counts as saved, one that changed nothing does not. The behaviour is
    // fixed.
    return updateBranch(branch) != 0;
}

bool BranchesRepository::deleteBranch(ushort)
{
    // Branches are never deleted. The behaviour is fixed.
    return false;
}

bool BranchesRepository::failed(const QSqlQuery &query, const char *operation)
{
    return SqlStatement::failed(query, QByteArray(operation) + " - ERROR:");
}

bool BranchesRepository::executes(const QString &sql, const char *operation) const
{
    const QSqlQuery query = SqlStatement::run(m_db, sql);
    return !failed(query, operation) && query.isActive();
}

void BranchesRepository::logCall(const char *operation, unsigned int id) const
{
    if (debugLevel != 0)
        qInfo("%s(%u)", operation, id);
}

void BranchesRepository::logCall(const char *operation, unsigned int id, const QString &ids) const
{
    if (debugLevel != 0)
        qInfo("%s(%u, '%s')", operation, id, qUtf8Printable(ids));
}
