#pragma once

#include <QSqlDatabase>
#include <QString>

#include <optional>

/// The key in `vars` that makes the plugin's next tick synchronise.
class ForceFlag {
public:
    explicit ForceFlag(const QSqlDatabase &db);

    /// Whether the plugin would find it set. Nothing when reading fails.
    std::optional<bool> isSet();
    /// Sets or clears it. False when writing fails.
    bool set(bool on);

    /// Why the last operation failed, a sentence without its full stop.
    QString errorString() const { return m_error; }

private:
    const QSqlDatabase m_db;
    QString m_error;
};
