// How close an upload to a camera on USB comes to what its bus can do.
//
// An image is uploaded to a virtual camera on an emulated USB. The anchor is a bare loop of bulk
// transfers that sends commands of the same kinds, numbers and sizes to the same camera and waits
// for each answer. Both are measured by the clock on the wall, as the user waits for either. The
// emulated bus is slower than a real one by far: it is the ratio that counts.

#include "comparison.h"
#include "support/virtualcameraprocess.h"
#include "viewer/camera/genicam/genicamdevice.h"
#include "viewer/camera/genicam/usbsearch.h"
#include "virtualcamera/memorymap.h"
#include "virtualcamera/u3v.h"
#include "virtualcamera/usbdescriptors.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QtEndian>

#include <cstdio>
#include <cstdlib>
#include <libusb.h>
#include <unistd.h>

using namespace VirtualCamera;
using TestSupport::CVirtualCameraProcess;

static constexpr int IMAGE_SIZE = 128 * 1024;
static constexpr int PIECE_SIZE = U3v::LONGEST_TRANSFER - U3v::HEADER_SIZE - 8;

[[noreturn]] static void fail(const char *text)
{
    std::fprintf(stderr, "%s\n", text);
    std::exit(EXIT_FAILURE);
}

namespace {

/// Bulk transfers, one command at a time.
class CBareClient
{
public:
    CBareClient()
    {
        libusb_init(&m_context);
        libusb_device **devices = nullptr;
        const ssize_t count = libusb_get_device_list(m_context, &devices);
        if (count != 1 || libusb_open(devices[0], &m_device) != 0
            || libusb_claim_interface(m_device, 0) != 0)
            fail("The virtual camera cannot be opened.");
        libusb_free_device_list(devices, 1);
    }
    ~CBareClient()
    {
        libusb_release_interface(m_device, 0);
        libusb_close(m_device);
        libusb_exit(m_context);
    }
    Q_DISABLE_COPY(CBareClient)

    QByteArray ask(U3v::ECommand command, const QByteArray &payload)
    {
        // An answer with another command's number is a command.
        QByteArray request = U3v::makeAnswer(
            Gvcp::EStatus::Success, static_cast<quint16>(static_cast<quint16>(command) - 1), ++m_id,
            payload);
        qToLittleEndian(quint16(0x4000), request.data() + 4);
        QByteArray answer(U3v::LONGEST_TRANSFER, '\0');
        transfer(UsbEndpoint::COMMANDS, request);
        transfer(UsbEndpoint::ANSWERS, answer);
        if (qFromLittleEndian<quint16>(answer.constData() + 4) != 0)
            fail("The virtual camera refuses.");
        return answer.mid(U3v::HEADER_SIZE);
    }

    void write(quint32 address, const QByteArray &bytes)
    {
        QByteArray payload(8, '\0');
        qToLittleEndian(quint64(address), payload.data());
        ask(U3v::ECommand::WriteMemory, payload + bytes);
    }

    void writeWord(quint32 address, quint32 value)
    {
        QByteArray bytes;
        Gvcp::appendWord(bytes, value);
        write(address, bytes);
    }

    quint32 readWord(quint32 address)
    {
        QByteArray payload(12, '\0');
        qToLittleEndian(quint64(address), payload.data());
        qToLittleEndian(quint16(4), payload.data() + 10);
        return Gvcp::readWord(ask(U3v::ECommand::ReadMemory, payload), 0);
    }

private:
    void transfer(quint8 endpoint, QByteArray &bytes)
    {
        constexpr unsigned int TIME_LIMIT = 5000; // milliseconds
        int count = 0;
        if (libusb_bulk_transfer(m_device, endpoint, reinterpret_cast<uchar *>(bytes.data()),
                                 bytes.size(), &count, TIME_LIMIT)
            != 0)
            fail("The virtual camera does not answer.");
        bytes.truncate(count);
    }

    libusb_context *m_context = nullptr;
    libusb_device_handle *m_device = nullptr;
    quint16 m_id = 0;
};

} // namespace

static double megabytesPerSecond(qint64 nanoseconds)
{
    return IMAGE_SIZE / 1e6 / (static_cast<double>(nanoseconds) / 1e9);
}

static double upload(const QByteArray &image)
{
    const auto found = Viewer::Camera::GenICam::findUsbCameras();
    if (found.isEmpty())
        fail("The virtual camera is not found.");
    Viewer::Camera::GenICam::CGenICamDevice device(found.first());
    device.open(std::chrono::seconds(10));
    QBuffer source;
    source.setData(image);
    source.open(QIODevice::ReadOnly);
    QElapsedTimer timer;
    timer.start();
    device.uploadFile("FirmwareImage", source, image.size(), {}, std::chrono::minutes(10));
    return megabytesPerSecond(timer.nsecsElapsed());
}

// What the upload sends for each block, and nothing else.
static double runBareLoop(const QByteArray &image, int bufferLength)
{
    CBareClient client;
    client.writeWord(MemoryMap::FILE_OPEN_MODE, 1);
    client.writeWord(MemoryMap::FILE_OPERATION_SELECTOR, 0);
    client.writeWord(MemoryMap::FILE_OPERATION_EXECUTE, 1);
    client.writeWord(MemoryMap::FILE_OPERATION_SELECTOR, 3);
    QElapsedTimer timer;
    timer.start();
    for (int offset = 0; offset < image.size(); offset += bufferLength) {
        client.writeWord(MemoryMap::FILE_ACCESS_OFFSET, static_cast<quint32>(offset));
        for (int i = 0; i < bufferLength; i += PIECE_SIZE)
            client.write(MemoryMap::FILE_ACCESS_BUFFER + static_cast<quint32>(i),
                         image.mid(offset + i, qMin(PIECE_SIZE, bufferLength - i)));
        client.writeWord(MemoryMap::FILE_OPERATION_EXECUTE, 1);
        if (client.readWord(MemoryMap::FILE_OPERATION_RESULT) != static_cast<quint32>(bufferLength))
            fail("The virtual camera has not taken a block.");
    }
    const double speed = megabytesPerSecond(timer.nsecsElapsed());
    client.writeWord(MemoryMap::FILE_OPERATION_SELECTOR, 1);
    client.writeWord(MemoryMap::FILE_OPERATION_EXECUTE, 1);
    return speed;
}

int main(int argc, char **argv)
{
    // An emulated bus is seen from the start of a process on, or not at all.
    if (!CVirtualCameraProcess::isOnUsb()) {
        qputenv("CAMERAS_ON_USB", "1");
        qputenv("LD_PRELOAD", "libumockdev-preload.so.0");
        execv("/proc/self/exe", argv);
        fail("The program cannot start itself.");
    }
    const QCoreApplication application(argc, argv);
    const QByteArray image(IMAGE_SIZE, 'x');

    Benchmark::printHeader();
    for (const int bufferLength : {512, 4096, 65536}) {
        const CVirtualCameraProcess camera({}, {"--buffer", QString::number(bufferLength)});
        Benchmark::compare(
            qPrintable(QString("USB upload, %1-byte buffer, MB/s").arg(bufferLength)),
            Benchmark::atLeast(0.75), [&] { return upload(image); },
            [&] { return runBareLoop(image, bufferLength); });
    }
    return EXIT_SUCCESS;
}
