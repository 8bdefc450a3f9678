#pragma once

#include "tests/support/testdatabase.h"

#include <QDate>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

/// What one synchronisation does to one person (pid), in the words of explain's facts. It is
/// derived from the plugin's log at debug level 3, its statements, and the database before and
/// after.
class ObservedPerson {
public:
    /// Reads the database before the synchronisation.
    ObservedPerson(TestDatabase &database, quint32 pid);

    /// The parts of a log that belong to the records, in order. The first element is what precedes
    /// the first record.
    static QVector<QStringList> parts(const QStringList &log);

    /// Adds the next record of the person. \a isRepetition: its line is the same as the one before,
    /// and nothing is forced.
    void see(const QStringList &part, bool isRepetition);
    /// Reads the database after the synchronisation, which has sent these statements.
    void finish(const QStringList &statements);

    /// The facts of each record: all but those of the recalculation, and whether it waits.
    const QVector<QJsonObject> &records() const { return m_records; }
    /// The facts of all records together: all but the causes of a recalculation, and whether a
    /// record waits.
    QJsonObject facts() const;

private:
    /// What the database holds of the person.
    struct State {
        bool exists = false;
        bool isKnown = false; ///< to the plugin
        bool corrected = false;
        QString row; ///< without what a calculation of attendance needs
        QString administrators;
        QStringList branches;
        QString plan;
        QString payrollSettings;
        bool isSelected = false;
        QSet<QString> openDays;
        qint64 lastCalc = 0;
    };

    State look();
    QString text(const QString &select);

    QString person(const QStringList &part) const;
    QString payroll(const QStringList &part) const;
    QString payrollSettings(const QStringList &part) const;
    QString balance(const QStringList &part, bool isRepetition) const;
    QString supervisor(const QStringList &part) const;
    QString branch(const QStringList &part) const;
    QString calendar(const QStringList &part) const;

    QString weightiest(const char *fact, const QStringList &words) const;
    QString wholePerson() const;
    QString wholeCalculation(const QStringList &statements);

    TestDatabase &m_db;
    const quint32 m_pid;
    const State m_before;
    State m_after;
    bool m_exists;
    bool m_isSelected;
    QString m_recalculation;
    QVector<QJsonObject> m_records;
};
