#pragma once

#include <QObject>

#include <array>
#include <initializer_list>

/// Turns UNIX signals into a Qt signal in the thread that this object lives in. One object a
/// process.
///
/// The signals are caught, not blocked, so that programs started by the process find them as usual.
class UnixSignals : public QObject {
    Q_OBJECT

public:
    /// Catches these signals for the rest of the process.
    explicit UnixSignals(std::initializer_list<int> signalNumbers);
    ~UnixSignals() override;

    /// The number of the signal that came last; 0 when none has come. Known at once, whether the
    /// thread runs an event loop or not.
    int last() const;

Q_SIGNALS:
    /// A signal of this number arrived.
    void received(int signalNumber);

private:
    void readOne();

    std::array<int, 2> m_pipe{-1, -1};
};
