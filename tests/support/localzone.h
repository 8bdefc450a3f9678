#pragma once

#include <QByteArray>

/// Makes a zone the local one of this program, until the object goes away.
class LocalZone {
public:
    explicit LocalZone(const QByteArray &zone);
    ~LocalZone();
    LocalZone(const LocalZone &) = delete;
    LocalZone &operator=(const LocalZone &) = delete;

private:
    QByteArray m_outer;
};
