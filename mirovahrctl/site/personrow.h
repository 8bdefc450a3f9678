#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

class SqlSession;

/// The row of `people` with a given pid, whether the plugin recognises the person or not.
struct PersonRow {
    quint32 uid = 0;
    QString payrollId; ///< `pamId`, by which the plugin identifies active people
    QString name; ///< first name and surname
    bool active = false; ///< `status`: the plugin does not see others
    qint64 created = 0; ///< Unix time; 0: not known
    qint64 edited = 0; ///< Unix time; 0: never
    bool editedByPlugin = false; ///< `editor` is 0: the last change was the plugin's
    std::optional<qint64> end; ///< Unix time of the last second of employment; nothing: open
    qint64 lastCalc = 0; ///< Unix time
    qint64 calc = 0; ///< Unix time of the last calculation of attendance; 0: one is due

    /// Whether the last day of employment has passed.
    bool isOver() const;

    /// The row of a pid. Nothing when there is none, or the query fails.
    static std::optional<PersonRow> read(SqlSession &sql, quint32 pid);
};
