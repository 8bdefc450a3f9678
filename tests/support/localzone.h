#pragma once

#include <QByteArray>

/// Sets the local time zone of this program for the lifetime of the object.
class LocalZone {
public:
    explicit LocalZone(const QByteArray &zone);
    ~LocalZone();
    LocalZone(const LocalZone &) = delete;
    LocalZone &operator=(const LocalZone &) = delete;

private:
    QByteArray m_outer;
};
