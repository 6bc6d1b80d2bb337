#include "fuzztarget.h"
#include "virtualcamera/gvsp.h"
#include "virtualcamera/icameraobserver.h"
#include "virtualcamera/virtualcamera.h"

using namespace VirtualCamera;

namespace {

class CSilentObserver : public ICameraObserver
{
    void onEvent(const QByteArray &event) override { Q_UNUSED(event) }
    void onFileClosed(const QByteArray &content) override { Q_UNUSED(content) }
};

/// Whatever was asked, what is sent stays on this machine, and says as much as its header promises.
bool isSound(const CDatagram &answer)
{
    const QByteArray &bytes = answer.bytes;
    return answer.receiver.isLoopback() && bytes.size() >= Gvcp::HEADER_SIZE
        && bytes.size() <= Gvcp::HEADER_SIZE + Gvcp::MAXIMUM_PAYLOAD
        && static_cast<int>(Gvcp::readWord(bytes, 4) >> 16) == bytes.size() - Gvcp::HEADER_SIZE;
}

/// The same for what is streamed: one batch, since there is more of it than time.
void takePackets(CVirtualCamera &camera, Time now)
{
    static CPacketBatch batch;
    camera.takePackets(now, batch);
    for (int i = 0; i < batch.getCount(); ++i) {
        const CPacketBatch::CPacket &packet = batch.getPacket(i);
        Fuzz::require(batch.getReceiver().isLoopback() && batch.getReceiver().port != 0);
        Fuzz::require(packet.size >= Gvsp::HEADER_SIZE && packet.size <= 9000);
    }
}

/// A camera that does what it is told, and one that makes it hard.
QVector<CCameraSettings> getKinds()
{
    CCameraSettings kind;
    kind.bufferLength = 512;
    kind.openDuration = std::chrono::milliseconds(100);
    kind.width = 64;
    CCameraSettings unkind = kind;
    unkind.bufferLength = 515;
    unkind.openDuration = std::chrono::milliseconds(0);
    unkind.resetDelay = std::chrono::milliseconds(100);
    unkind.activationReads = 1;
    unkind.operationReads = 2;
    unkind.returnsWithSerialNumber = "7";
    unkind.restartsToo = 0x7f000003;
    unkind.losesEvery = 5;
    unkind.losesPacket = 7;
    unkind.swapsPacket = 5;
    unkind.stopsInFrame = 4;
    unkind.wrongLeaderSize = 2;
    unkind.wrongTrailerSize = 3;
    return {kind, unkind};
}

} // namespace

/// Makes the header of @p datagram tell how long it is: few random changes would hit that.
static void repair(QByteArray &datagram)
{
    if (datagram.size() < Gvcp::HEADER_SIZE)
        return;
    QByteArray length;
    Gvcp::appendHalfWord(length, static_cast<quint16>(datagram.size() - Gvcp::HEADER_SIZE));
    datagram.replace(4, 2, length);
}

/// Plays @p input, a row of datagrams, each behind three bytes: who sends it and how much later
/// than the one before, and its length.
static void play(const QByteArray &input, const CCameraSettings &settings, bool repairs)
{
    CSilentObserver observer;
    CVirtualCamera camera(settings, observer);
    Time now(0);
    for (int position = 0; position + 3 <= input.size();) {
        const auto control = static_cast<quint8>(input.at(position));
        const int length = static_cast<quint8>(input.at(position + 1)) * 256
            + static_cast<quint8>(input.at(position + 2));
        QByteArray datagram = input.mid(position + 3, length);
        position += 3 + length;
        if (repairs)
            repair(datagram);

        now += std::chrono::milliseconds((control >> 1) * 50);
        const CPeer sender{0x7f000001U + (control & 1U), 4000};
        const QVector<CDatagram> answers = camera.handle(datagram, sender, now);
        for (const CDatagram &answer : answers)
            Fuzz::require(isSound(answer));
        takePackets(camera, now);
    }
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QVector<CCameraSettings> kinds = getKinds();
    for (const CCameraSettings &settings : kinds) {
        for (const bool repairs : {false, true})
            play(Fuzz::toBytes(data, size), settings, repairs);
    }
    return 0;
}
