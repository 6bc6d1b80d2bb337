#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace VirtualCamera {

/// The other end of a datagram's way: an IPv4 address in the machine's byte order, and a port.
struct CPeer
{
    quint32 address = 0;
    quint16 port = 0;

    [[nodiscard]] bool isLoopback() const { return address >> 24 == 127; }

    friend bool operator==(const CPeer &left, const CPeer &right)
    {
        return left.address == right.address && left.port == right.port;
    }
    friend bool operator!=(const CPeer &left, const CPeer &right) { return !(left == right); }
};

/// Bytes on their way to somebody.
struct CDatagram
{
    CPeer receiver;
    QByteArray bytes;
};

} // namespace VirtualCamera
