#pragma once

#include "camerasettings.h"
#include "cameravoice.h"
#include "packetbatch.h"
#include "packetsender.h"
#include "virtualcamera.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QUdpSocket>

namespace VirtualCamera {

/// Gives a virtual camera its sockets, its clock and a voice, which is heard on standard output.
class CUdpShell : public QObject
{
    Q_OBJECT

public:
    /// @p flashFile: see CCameraVoice.
    CUdpShell(const CCameraSettings &settings, const QString &flashFile, QObject *parent = nullptr);
    ~CUdpShell() override;

    /// Binds the camera's address and, where the system lets it, the one that discoveries are
    /// broadcast to. False with a sentence in @p error when an address is not to be had, or the
    /// file for what is uploaded cannot be written.
    bool start(QString &error);

    /// Prints what the camera has been asked so far.
    void printStatistics();

private:
    void readDatagrams(QUdpSocket &socket);
    void send(const QVector<CDatagram> &datagrams);
    void tick();
    /// Sends what is due of the stream, at most one batch, and sets the timer for what comes next.
    void goOn();
    [[nodiscard]] Time getTime() const;

    const quint32 m_address;
    const std::chrono::milliseconds m_answerDelay;
    CCameraVoice m_voice;
    CPacketSender m_packetSender;
    CPacketBatch m_packets;
    CVirtualCamera m_camera;
    QUdpSocket m_socket;
    QUdpSocket m_broadcastSocket;
    QElapsedTimer m_clock;
    // Those of Qt count milliseconds, in which many packets are due.
    const int m_timer;
    QSocketNotifier m_timerNotifier;
};

} // namespace VirtualCamera
