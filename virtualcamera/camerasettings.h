#pragma once

#include "edescription.h"

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <optional>

namespace VirtualCamera {

enum class ETransport {
    Ethernet, ///< GigE Vision
    Usb, ///< USB3 Vision
};

/// What a virtual camera is, how long things take it, and what goes wrong with it.
struct CCameraSettings
{
    ETransport transport = ETransport::Ethernet;

    // Identity; texts are cut to the length of their registers.
    QByteArray vendor = "Korvane";
    QByteArray model = "GV-1400M";
    QByteArray serialNumber = "50000001";
    QByteArray userName;
    QByteArray firmwareVersion = "1.2.0"; ///< also what the discovery calls the device's version
    quint32 address = 0x7f000002; ///< IPv4, 127.0.0.2; also the end of the hardware address
    quint32 status = 0; ///< 0: the camera can be updated

    // The image, as long as nobody chooses another one.
    int width = 1280; ///< 16 to 4096, a multiple of 4
    int height = 1024; ///< 2 to 3000, a multiple of 2
    quint32 pixelFormat = 0x01080001; ///< code of one of PIXEL_FORMATS; Mono8
    int frameRate = 25; ///< frames a second, 1 to 1000
    quint16 streamPort = 0; ///< UDP port that stream packets come from

    int bufferLength = 4096; ///< of the file access buffer in bytes, 512 to 65536

    EDescription description = EDescription::Sound;
    QByteArray descriptionName; ///< of the file that is given out as the description
    QByteArray descriptionContent; ///< of this file

    std::chrono::milliseconds answerDelay{0}; ///< of each answer
    std::chrono::milliseconds resetDelay{0}; ///< from the command to the silence
    std::chrono::milliseconds resetDuration{2000}; ///< of the silence
    std::chrono::milliseconds activationDuration{200};
    int activationReads = 0; ///< so often the activation reads as running, whatever its duration
    int operationReads = 0; ///< the same for each file operation; 0: nobody can tell that it runs
    std::chrono::milliseconds openDuration{0}; ///< of the file; above 0 it is announced as pending
    std::chrono::milliseconds heartbeatTimeout{3000};

    // Faults.
    std::optional<qint64> diesAfterBytes; ///< falls silent for ever when so much has been uploaded
    std::optional<qint64> losesControlAfterBytes; ///< somebody else takes it
    bool neverOpens = false; ///< the file: announced as pending again and again
    bool ignoresReset = false; ///< but says that it has done it
    bool neverReturns = false; ///< from a reset
    bool returnsWithOldVersion = false;
    QByteArray returnsWithModel; ///< from a reset; empty: with the same one
    QByteArray returnsWithSerialNumber; ///< the same
    quint32 restartsToo = 0; ///< IPv4 address of a camera that restarts with this one; 0: none
    QByteArray refusedCommand; ///< name of a command feature
    int losesEvery = 0; ///< each n-th datagram is lost before it is read; 0: none
    int losesAcknowledge = 0; ///< the answer to the n-th write of memory is lost; 0: none

    // Faults of USB; the answers are those to writes of memory, and 0 is none.
    std::optional<qint64> unplugsAfterBytes; ///< for ever, when so much has been uploaded
    std::optional<qint64> stallsAfterBytes; ///< the control channel, once
    int cutsAnswer = 0; ///< the n-th answer ends in its middle
    int mistakesAnswer = 0; ///< the n-th answer is one to another request
    int unplugsInFrame = 0; ///< the n-th one since the start of an acquisition, at its middle
    std::chrono::milliseconds plugsInAfter{0}; ///< being unplugged in a frame; 0: never

    // Faults of the stream; 0: none.
    int losesPacket = 0; ///< each n-th packet of payload is not sent
    int swapsPacket = 0; ///< each n-th packet of payload is sent behind the next one
    bool neverResends = false; ///< packets
    int stopsInFrame = 0; ///< the n-th one since the start of an acquisition, at its middle
    int wrongLeaderSize = 0; ///< each n-th leader tells of twice as many rows
    int wrongTrailerSize = 0; ///< each n-th trailer tells of half as many rows
    quint32 streamsFrom = 0; ///< IPv4 address that packets come from instead of the camera's own
};

/// True for each n-th of a row that counts from 1; n = 0: for none.
[[nodiscard]] inline bool isEachNth(qint64 number, int n)
{
    return n > 0 && number % n == 0;
}

} // namespace VirtualCamera
