#pragma once

#include <QHash>
#include <QString>

#include <optional>

class SqlSession;

/// How the server would run a query, by its EXPLAIN.
class StatementPlan {
public:
    /// Nothing when the server does not explain the query, because the account lacks a right, or
    /// something that the query names does not exist; \a site then says why.
    static std::optional<StatementPlan> of(SqlSession &site, const QString &query);

    /// How many rows of each table the server expects to walk, by its statistics.
    const QHash<QString, double> &walked() const { return m_walked; }

private:
    QHash<QString, double> m_walked;
};
