#pragma once

#include <QString>
#include <QtGlobal>

namespace VirtualCamera {

class CPacketBatch;

/// The socket that packets of a stream leave by.
class CPacketSender
{
public:
    /// Binds @p address, IPv4 in the machine's byte order, with a port that is free.
    explicit CPacketSender(quint32 address);
    ~CPacketSender();
    Q_DISABLE_COPY(CPacketSender)

    /// What went wrong so far; empty: nothing.
    [[nodiscard]] const QString &getError() const { return m_error; }

    /// The port that packets come from; 0 when there is an error.
    [[nodiscard]] quint16 getPort() const { return m_port; }

    /// Sends all of @p batch. What the system does not take is lost, as on a wire.
    void send(const CPacketBatch &batch);

private:
    int m_socket = -1;
    quint16 m_port = 0;
    bool m_mayFragment = true; ///< what the socket is set to
    QString m_error;
};

} // namespace VirtualCamera
