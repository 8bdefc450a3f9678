// Branch–attribute–section triples.

#include "db/branchesrepository.h"

#include "db/sqlstatement.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

const QLatin1String kAddTriple("INSERT INTO `bas` (bid, attrid, secid) VALUES(?, ?, ?)"
                               " ON DUPLICATE KEY UPDATE bid=VALUES(bid);");
const QLatin1String kDelete("DELETE FROM `bas` WHERE bid = ? AND attrid = ? AND secid = ?;");

constexpr char kAddName[] = "BranchesRepository::addBAS";
constexpr char kDeleteName[] = "BranchesRepository::deleteBAS";

/// Binds the three columns of the triples as one list each.
void bindColumns(QSqlQuery &query, const QStringList &triples)
{
    QVariantList bids;
    QVariantList attrids;
    QVariantList secids;
    for (const QString &triple : triples) {
        const QStringList parts = triple.split(QLatin1Char('-'));
        if (parts.size() != 3)
            continue;
        bids += parts.at(0).toUInt();
        attrids += parts.at(1).toUInt();
        secids += parts.at(2).toUInt();
    }
    query.addBindValue(bids);
    query.addBindValue(attrids);
    query.addBindValue(secids);
}

} // namespace

bool BranchesRepository::addBAS(const BASData &triple)
{
    return changeTriple(kAddName, kAddTriple, triple);
}

bool BranchesRepository::deleteBAS(const BASData &triple)
{
    return changeTriple(kDeleteName, kDelete, triple);
}

bool BranchesRepository::addBAS(const QStringList &triples)
{
    return changeTriples(kAddName, kAddTriple, triples);
}

bool BranchesRepository::deleteBAS(const QStringList &triples)
{
    return changeTriples(kDeleteName, kDelete, triples);
}

bool BranchesRepository::changeTriple(const char *operation, QLatin1String sql,
                                      const BASData &triple)
{
    QSqlQuery query(m_db);
    if (!beginTriples(query, operation, sql, triple.getString()))
        return false;
    query.addBindValue(triple.bid);
    query.addBindValue(triple.attrid);
    query.addBindValue(triple.secid);
    query.exec();
    return !SqlStatement::failed(query, QByteArray(operation) + "() - exec failed, SQL ERROR:");
}

bool BranchesRepository::changeTriples(const char *operation, QLatin1String sql,
                                       const QStringList &triples)
{
    QSqlQuery query(m_db);
    if (!beginTriples(query, operation, sql, triples.join(QLatin1Char(','))))
        return false;
    bindColumns(query, triples);
    query.execBatch();
    return !SqlStatement::failed(query,
                                 QByteArray(operation) + "() - execBatch failed, SQL ERROR:");
}

bool BranchesRepository::beginTriples(QSqlQuery &query, const char *operation, QLatin1String sql,
                                      const QString &triples) const
{
    if (debugLevel != 0)
        qInfo("%s(%s)", operation, qUtf8Printable(triples));
    if (query.prepare(sql))
        return true;
    qCritical("%s() - prepare failed, SQL ERROR: %s", operation,
              qUtf8Printable(query.lastError().text()));
    return false;
}
