#pragma once

#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The key in `vars` that makes the plugin's next tick synchronise.
class ForceFlag {
public:
    explicit ForceFlag(const QSqlDatabase &db);

    /// Whether the plugin would find it set. Nothing when it cannot be read.
    std::optional<bool> isSet();
    /// False when it cannot be written.
    bool set(bool on);

    /// Why the last operation failed.
    QString errorString() const { return m_error; }

private:
    const QSqlDatabase m_db;
    QString m_error;
};
