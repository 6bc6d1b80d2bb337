// How close an upload to a camera comes to what its connection can do.
//
// An image is uploaded to virtual cameras with file access buffers of different lengths. The anchor
// is a bare loop over a plain socket that sends commands of the same kinds, numbers and sizes to
// the same camera and waits for each answer. Both are measured by the clock on the wall: either
// side spends its time waiting for the camera, and the user waits with it.

#include "comparison.h"
#include "support/virtualcameraprocess.h"
#include "viewer/camera/genicam/genicam.h"
#include "viewer/camera/icameradevice.h"
#include "virtualcamera/gvcp.h"
#include "virtualcamera/memorymap.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>

#include <arpa/inet.h>
#include <cstdio>
#include <cstdlib>
#include <sys/socket.h>
#include <unistd.h>

using namespace VirtualCamera;
using TestSupport::CVirtualCameraProcess;
using Viewer::Camera::ICameraDevice;
using Viewer::Camera::GenICam::CGenICam;

static constexpr int IMAGE_SIZE = 8 * 1024 * 1024;
static constexpr int MEMORY_BLOCK = 512; // what the library puts into one command
static constexpr double ROUND_TRIP_MS = 0.2; // of a quiet network

[[noreturn]] static void fail(const char *text)
{
    std::fprintf(stderr, "%s\n", text);
    std::exit(EXIT_FAILURE);
}

namespace {

/// A plain socket, one command at a time.
class CBareClient
{
public:
    explicit CBareClient(const QHostAddress &address)
        : m_socket(socket(AF_INET, SOCK_DGRAM, 0))
    {
        sockaddr_in camera{};
        camera.sin_family = AF_INET;
        camera.sin_port = htons(Gvcp::PORT);
        camera.sin_addr.s_addr = htonl(address.toIPv4Address());
        if (connect(m_socket, reinterpret_cast<sockaddr *>(&camera), sizeof camera) != 0)
            fail("The virtual camera cannot be reached.");
    }
    ~CBareClient() { close(m_socket); }
    Q_DISABLE_COPY(CBareClient)

    QByteArray ask(Gvcp::ECommand command, const QByteArray &payload)
    {
        QByteArray request("\x42\x01", 2);
        Gvcp::appendHalfWord(request, static_cast<quint16>(command));
        Gvcp::appendHalfWord(request, static_cast<quint16>(payload.size()));
        Gvcp::appendHalfWord(request, ++m_id == 0 ? ++m_id : m_id);
        request += payload;
        QByteArray answer(Gvcp::HEADER_SIZE + Gvcp::MAXIMUM_PAYLOAD, '\0');
        if (send(m_socket, request.constData(), static_cast<size_t>(request.size()), 0) < 0
            || recv(m_socket, answer.data(), static_cast<size_t>(answer.size()), 0) < 8
            || Gvcp::readWord(answer, 0) >> 16 != 0)
            fail("The virtual camera refuses.");
        return answer;
    }

    void write(quint32 address, const QByteArray &bytes)
    {
        QByteArray payload;
        Gvcp::appendWord(payload, address);
        ask(Gvcp::ECommand::WriteMemory, payload + bytes);
    }

    void writeWord(quint32 address, quint32 value)
    {
        QByteArray bytes;
        Gvcp::appendWord(bytes, value);
        write(address, bytes);
    }

    quint32 readWord(quint32 address)
    {
        QByteArray payload;
        Gvcp::appendWord(payload, address);
        Gvcp::appendWord(payload, 4);
        return Gvcp::readWord(ask(Gvcp::ECommand::ReadMemory, payload), Gvcp::HEADER_SIZE + 4);
    }

private:
    const int m_socket;
    quint16 m_id = 0;
};

} // namespace

static double megabytesPerSecond(qint64 nanoseconds)
{
    return IMAGE_SIZE / 1e6 / (static_cast<double>(nanoseconds) / 1e9);
}

static std::unique_ptr<ICameraDevice> openDevice(const QHostAddress &address)
{
    CGenICam cameras(Viewer::Camera::GenICam::CSearchOptions{{address}});
    const auto found = cameras.enumerate().value(0).cameras;
    std::unique_ptr<ICameraDevice> device
        = found.isEmpty() ? nullptr : cameras.createDevice(found.first().id);
    if (!device)
        fail("The virtual camera does not answer.");
    device->open(std::chrono::seconds(10));
    return device;
}

static double upload(const QHostAddress &address, const QByteArray &image)
{
    const std::unique_ptr<ICameraDevice> device = openDevice(address);
    QBuffer source;
    source.setData(image);
    source.open(QIODevice::ReadOnly);
    QElapsedTimer timer;
    timer.start();
    device->uploadFile("FirmwareImage", source, image.size(), {}, std::chrono::minutes(10));
    return megabytesPerSecond(timer.nsecsElapsed());
}

// What the upload sends for each block, and nothing else.
static double runBareLoop(const QHostAddress &address, const QByteArray &image, int bufferLength)
{
    CBareClient client(address);
    client.writeWord(MemoryMap::CONTROL_PRIVILEGE, 2);
    client.writeWord(MemoryMap::FILE_OPEN_MODE, 1);
    client.writeWord(MemoryMap::FILE_OPERATION_SELECTOR, 0);
    client.writeWord(MemoryMap::FILE_OPERATION_EXECUTE, 1);
    client.writeWord(MemoryMap::FILE_OPERATION_SELECTOR, 3);
    QElapsedTimer timer;
    timer.start();
    for (int offset = 0; offset < image.size(); offset += bufferLength) {
        client.writeWord(MemoryMap::FILE_ACCESS_OFFSET, static_cast<quint32>(offset));
        for (int i = 0; i < bufferLength; i += MEMORY_BLOCK)
            client.write(MemoryMap::FILE_ACCESS_BUFFER + static_cast<quint32>(i),
                         image.mid(offset + i, MEMORY_BLOCK));
        client.writeWord(MemoryMap::FILE_OPERATION_EXECUTE, 1);
        if (client.readWord(MemoryMap::FILE_OPERATION_RESULT) != static_cast<quint32>(bufferLength))
            fail("The virtual camera has not taken a block.");
    }
    const double speed = megabytesPerSecond(timer.nsecsElapsed());
    client.writeWord(MemoryMap::CONTROL_PRIVILEGE, 0);
    return speed;
}

static qint64 countCommands(CVirtualCameraProcess &camera)
{
    const QHash<QString, qint64> numbers = camera.end();
    qint64 commands = 0;
    for (const char *const kind : {"readreg", "writereg", "readmem", "writemem"})
        commands += numbers.value(kind);
    return commands;
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QByteArray image(IMAGE_SIZE, 'x');

    Benchmark::printHeader();
    int host = 0;
    for (const int bufferLength : {512, 4096, 65536}) {
        const QHostAddress address = CVirtualCameraProcess::getOwnAddress(++host);
        const QStringList arguments{"--buffer", QString::number(bufferLength)};
        {
            const CVirtualCameraProcess camera(address, arguments);
            Benchmark::compare(
                qPrintable(QString("8 MiB upload, %1-byte buffer, MB/s").arg(bufferLength)),
                Benchmark::atLeast(0.75), [&] { return upload(address, image); },
                [&] { return runBareLoop(address, image, bufferLength); });
        }

        CVirtualCameraProcess idle(address, arguments);
        openDevice(address).reset(); // what has nothing to do with blocks
        const qint64 others = countCommands(idle);
        CVirtualCameraProcess camera(address, arguments);
        upload(address, image);
        const qint64 commands = countCommands(camera) - others;
        std::printf("  %.2f commands per block; %.1f s at a round trip of 0.2 ms\n",
                    static_cast<double>(commands * bufferLength) / IMAGE_SIZE,
                    static_cast<double>(commands) * ROUND_TRIP_MS / 1000.0);
    }
    return EXIT_SUCCESS;
}
