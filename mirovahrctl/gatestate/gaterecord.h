#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class GateFolder;

/// What the gate writes into its status file: see GateStatus for what others read of it. Besides
/// that, "overridden" has the reasons against the file that --accept set aside, and lastAdmitted
/// has the same and "delivered", when HR wrote the file.
class GateRecord {
public:
    /// The file's name in the gate's folder.
    static QString fileName();

    /// Takes over what the last run wrote of the last admitted file, as far as it can be read.
    /// False when reading fails; the folder then says why.
    bool readLast(GateFolder &folder);

    void refuse(const QStringList &reasons);

    struct Admission {
        QString file;
        qint64 lines = 0;
        QDateTime delivered;
        QStringList overridden;
    };
    /// The content is that of the last admitted file. That one is still the last unless HR has
    /// delivered the same anew.
    void admitAgain(const Admission &admission);
    void admit(const Admission &admission);

    /// Puts the file in its place. False when that fails; \a error then says why.
    bool write(GateFolder &folder, QString &error) const;

private:
    void finish(const char *result, const QStringList &reasons, const QStringList &overridden);

    QJsonObject m_lastAdmitted;
    QJsonObject m_record;
};
