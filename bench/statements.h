#pragma once

#include "bench/plainclient.h"

#include <QByteArray>
#include <QSqlDatabase>
#include <QString>
#include <QVector>

#include <functional>

class QDataStream;
class Site;

/// What the server was sent during one tick, from its general log, and how to send it again.
///
/// The log has a statement without the blanks and the ";" at its end.
class Statements {
public:
    /// Records what the account of the host sends while \a tick runs.
    static Statements recorded(const Site &site, const std::function<void()> &tick);

    void save(const QString &path) const;
    static Statements loaded(const QString &path);

    int count() const { return m_steps.size(); }

    /// The simplest tick of a Qt program: connects, sends each, reads every column, disconnects.
    void sendByQt(QSqlDatabase db) const;
    /// The same by the bare client.
    void sendByPlainClient(const plain_account &account) const;

private:
    struct Step {
        plain_kind kind = PLAIN_QUERY;
        QByteArray text;
        QVector<QByteArray> values;
        int columns = 0; ///< of a query's rows
        bool ofTheDriver = false; ///< Qt's driver sends it of its own accord
    };

    friend QDataStream &operator<<(QDataStream &stream, const Step &step);
    friend QDataStream &operator>>(QDataStream &stream, Step &step);

    static QVector<QByteArray> boundValues(const QByteArray &prepared, const QByteArray &executed);
    void add(const QString &command, const QByteArray &text);
    void countColumns(const Site &site);
    void arrange();
    static void sendQueryByQt(const QSqlDatabase &db, int columns, const QString &text);

    QVector<Step> m_steps;
    // What the bare client is given, made before anything is measured.
    QVector<QVector<plain_text>> m_plainValues;
    QVector<plain_step> m_plainSteps;
    QVector<QString> m_texts; ///< the statements as Qt takes them
    QVector<QVector<QString>> m_values;
};
