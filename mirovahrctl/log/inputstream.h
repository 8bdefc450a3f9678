#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

/// What others write into a pipe, or type, while it is read.
class InputStream : public QObject {
    Q_OBJECT

public:
    /// \a descriptor is one that is open for reading, and stays open.
    explicit InputStream(int descriptor);

Q_SIGNALS:
    void read(const QByteArray &block);
    /// Nothing more can come.
    void ended();
    /// It cannot be read any more, with the reason of the system.
    void failed(const QString &reason);

private:
    void readOn();

    QSocketNotifier m_notifier;
    QByteArray m_block;
};
