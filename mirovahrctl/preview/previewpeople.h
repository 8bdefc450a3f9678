#pragma once

#include <QSet>
#include <QString>
#include <QVector>

struct Configuration;

/// The people of an export, as far as they decide which rows a synchronisation reaches.
struct PreviewPeople {
    /// A line that puts a person into a calendar group.
    struct Placement {
        quint32 pid = 0;
        quint32 costCentre = 0;
        quint32 calendar = 0;
        quint32 since = 0; ///< month, 0 for none
    };

    QSet<quint32> pids;
    QVector<Placement> placements;
    /// The first line with a text that makes another statement of the one that it is filled into; 0
    /// for none.
    qint64 harmfulLine = 0;
    /// Whether a relationship state of the configuration is such a text.
    bool hasHarmfulState = false;

    /// The people whom the plugin reads from the export. As far as it can be read: the plugin
    /// reports that it cannot.
    static PreviewPeople of(const QString &exportFile, const Configuration &configuration);
};

bool operator==(const PreviewPeople &a, const PreviewPeople &b);
