#pragma once

#include <QSqlDatabase>
#include <QStringList>
#include <QVariantList>

#include <memory>

/// A database that runs nothing: it notes every statement that it is sent, and answers. The
/// plugin's own code works on it as on a server, and so gives its statements away.
///
/// One at a time. Whatever uses its connections must go first.
class StatementTap {
public:
    StatementTap();
    ~StatementTap();
    StatementTap(const StatementTap &) = delete;
    StatementTap &operator=(const StatementTap &) = delete;

    /// An open connection. Its clones are taps, too.
    QSqlDatabase database() const;

    /// What every later query returns: one row with these values, in further columns 0.
    void setAnswer(const QVariantList &row);

    /// The statements since the last call, in their order. Bound values are in the text.
    QStringList takeStatements();

    struct Tap;

private:
    const std::shared_ptr<Tap> m_tap;
};
