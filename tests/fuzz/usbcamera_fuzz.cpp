#include "fuzztarget.h"
#include "virtualcamera/icameraobserver.h"
#include "virtualcamera/u3v.h"
#include "virtualcamera/usbcamera.h"

#include <QtEndian>
#include <QVector>

using namespace VirtualCamera;

namespace {

class CSilentObserver : public ICameraObserver
{
    void onEvent(const QByteArray &event) override { Q_UNUSED(event) }
    void onFileClosed(const QByteArray &content) override { Q_UNUSED(content) }
};

/// Whatever was asked, an answer says as much as its header promises, but for the one that is cut
/// short by the fault.
bool isSound(const QByteArray &answer, bool mayBeCut)
{
    if (mayBeCut)
        return answer.size() <= U3v::LONGEST_TRANSFER;
    return answer.size() >= U3v::HEADER_SIZE && answer.size() <= U3v::LONGEST_TRANSFER
        && qFromLittleEndian<quint16>(answer.constData() + 8) == answer.size() - U3v::HEADER_SIZE;
}

/// A camera that does what it is told, and one that makes it hard.
QVector<CCameraSettings> getKinds()
{
    CCameraSettings kind;
    kind.transport = ETransport::Usb;
    kind.bufferLength = 512;
    kind.openDuration = std::chrono::milliseconds(100);
    kind.width = 64;
    CCameraSettings unkind = kind;
    unkind.bufferLength = 515;
    unkind.neverOpens = true;
    unkind.resetDelay = std::chrono::milliseconds(100);
    unkind.cutsAnswer = 3;
    unkind.mistakesAnswer = 4;
    unkind.losesAcknowledge = 5;
    unkind.stallsAfterBytes = 4;
    unkind.stopsInFrame = 4;
    unkind.unplugsInFrame = 2;
    unkind.plugsInAfter = std::chrono::milliseconds(50);
    return {kind, unkind};
}

} // namespace

/// Plays @p input, a row of transfers, each behind two bytes: how much later than the one before,
/// and its length.
static void play(const QByteArray &input, const CCameraSettings &settings, bool repairs)
{
    CSilentObserver observer;
    CUsbCamera camera(settings, observer);
    Time now(0);
    for (int position = 0; position + 2 <= input.size();) {
        const int length = static_cast<quint8>(input.at(position + 1));
        QByteArray transfer = input.mid(position + 2, length);
        now += std::chrono::milliseconds(static_cast<quint8>(input.at(position)) * 10);
        position += 2 + length;
        // Few random changes would hit the right length.
        if (repairs && transfer.size() >= U3v::HEADER_SIZE)
            qToLittleEndian(static_cast<quint16>(transfer.size() - U3v::HEADER_SIZE),
                            transfer.data() + 8);
        camera.handle(transfer, now);
        if (camera.isStalled())
            camera.clearStall();
        while (const std::optional<QByteArray> answer = camera.takeAnswer(now))
            Fuzz::require(isSound(*answer, settings.cutsAnswer > 0));
        uchar image[1024];
        // A few transfers: there are more of them than time.
        for (int i = 0; i < 3; ++i) {
            const std::optional<int> size = camera.takeImage(image, sizeof image, now);
            Fuzz::require(!size || (*size > 0 && *size <= static_cast<int>(sizeof image)));
        }
        const std::optional<Time> next = camera.getNextDeadline();
        Fuzz::require(!next || *next > now);
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
