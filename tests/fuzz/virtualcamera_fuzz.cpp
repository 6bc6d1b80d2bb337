#include "virtualcamera/icameraobserver.h"
#include "virtualcamera/virtualcamera.h"

#include <cstdint>
#include <cstdlib>

using namespace VirtualCamera;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

class CSilentObserver : public ICameraObserver
{
    void onEvent(const QByteArray &event) override { Q_UNUSED(event) }
    void onFileClosed(const QByteArray &content) override { Q_UNUSED(content) }
};

/// Whatever was asked, an answer goes to who asked, and says as much as its header promises.
bool isSound(const CDatagram &answer)
{
    const QByteArray &bytes = answer.bytes;
    return answer.receiver.isLoopback() && bytes.size() >= Gvcp::HEADER_SIZE
        && bytes.size() <= Gvcp::HEADER_SIZE + Gvcp::MAXIMUM_PAYLOAD
        && static_cast<int>(Gvcp::readWord(bytes, 4) >> 16) == bytes.size() - Gvcp::HEADER_SIZE;
}

} // namespace

/// The input is a row of datagrams, each behind three bytes: who sends it and how much later than
/// the one before, and its length.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    CCameraSettings settings;
    settings.bufferLength = 512;
    settings.openDuration = std::chrono::milliseconds(100);
    CSilentObserver observer;
    CVirtualCamera camera(settings, observer);

    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    Time now(0);
    for (int position = 0; position + 3 <= input.size();) {
        const auto control = static_cast<quint8>(input.at(position));
        const int length = static_cast<quint8>(input.at(position + 1)) * 256
            + static_cast<quint8>(input.at(position + 2));
        const QByteArray datagram = input.mid(position + 3, length);
        position += 3 + length;

        now += Time((control >> 1) * 50);
        const CPeer sender{0x7f000001U + (control & 1U), 4000};
        const QVector<CDatagram> answers = camera.handle(datagram, sender, now);
        for (const CDatagram &answer : answers) {
            if (!isSound(answer))
                std::abort();
        }
    }
    return 0;
}
