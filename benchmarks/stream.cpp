// What it costs that a camera's images come through a process of its own, shared memory and a view.
//
// A virtual camera streams 1920 x 1200 Mono8. The anchor of the frame rates is the library alone,
// which takes the images in a bare loop in this process; that of the CPU time is the library's own
// program arv-camera-test and one conversion of each image. Start it in a network of its own and on
// a display:
//
//   tests/loopbackonly.sh xvfb-run build-test/bin/bench_stream

// Before Qt makes keywords of names that GLib uses.
#include <arv.h>

#include "comparison.h"
#include "support/loopbackonly.h"
#include "support/streamtask.h"
#include "support/virtualcameraprocess.h"
#include "viewer/camera/genicam/glibpointers.h"
#include "viewer/imageview/imagetile.h"
#include "viewer/imageview/imageview.h"
#include "viewer/stream/camerastream.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <csignal>
#include <opencv2/imgproc.hpp>
#include <unistd.h>
#include <vector>

using TestSupport::CVirtualCameraProcess;
using Viewer::Camera::GenICam::CErrorGuard;
using Viewer::Camera::GenICam::CObjectPointer;
using Viewer::Image::CFrame;
using Viewer::ImageView::CImageTile;
using Viewer::Stream::CCameraStream;

namespace {

constexpr int WIDTH = 1920;
constexpr int HEIGHT = 1200;
constexpr int MEASURED_MS = 4000;
constexpr int WARM_UP_FRAMES = 10;
constexpr int WARM_UP_MS = 1500; // of the program whose frames nobody counts
constexpr int BARE_BUFFERS = 6; // as many as the worker has
constexpr int ROUNDS = 3;

/// Used by all threads of the process @p id, in milliseconds.
double getProcessMs(qint64 id)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(id));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The process has gone.");
    // Behind its name, which may have blanks.
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    return (fields.at(11).toDouble() + fields.at(12).toDouble()) * 1000
        / static_cast<double>(sysconf(_SC_CLK_TCK));
}

struct CResult
{
    double framesPerSecond = 0;
    double cpuMs = 0; ///< per second
    double firstImageMs = 0;
    qint64 incomplete = 0;
    qint64 dropped = 0; ///< for the screen
};

/// Counts between the end of the warm-up and that of the time that is measured.
class CCounter
{
public:
    /// True when it is enough.
    bool add()
    {
        if (++m_count == WARM_UP_FRAMES)
            m_timer.start();
        return m_timer.isValid() && m_timer.hasExpired(MEASURED_MS);
    }
    [[nodiscard]] bool hasBegun() const { return m_count == WARM_UP_FRAMES; }
    [[nodiscard]] double getRate() const
    {
        return (m_count - WARM_UP_FRAMES) * 1000.0 / static_cast<double>(m_timer.elapsed());
    }
    [[nodiscard]] double getSeconds() const
    {
        return static_cast<double>(m_timer.elapsed()) / 1000;
    }

private:
    int m_count = 0;
    QElapsedTimer m_timer;
};

/// Through the worker onto the screen.
CResult runViewer(const Viewer::Stream::CStreamTask &task)
{
    CResult result;
    CImageTile tile;
    tile.setName(QStringLiteral("Camera"));
    tile.resize(WIDTH / 2, HEIGHT / 2);
    tile.show();
    QEventLoop loop;
    QElapsedTimer start;
    start.start();
    CCameraStream stream(WORKER, task, QStringLiteral("Camera"));
    CCounter counter;
    double before = 0;
    const auto getCpu
        = [&stream] { return getProcessMs(getpid()) + getProcessMs(stream.getProcessId()); };
    QObject::connect(&stream, &CCameraStream::opened, &stream, &CCameraStream::start);
    QObject::connect(&stream, &CCameraStream::ended, &loop,
                     [](const auto &error) { qFatal("%s", qPrintable(error.getEnglish())); });
    QObject::connect(&stream, &CCameraStream::statisticsChanged, &tile, &CImageTile::addStatistics);
    QObject::connect(&stream, &CCameraStream::statisticsChanged, &loop,
                     [&result](const auto &statistics, qint64 skipped) {
                         result.incomplete = statistics.incompleteFrames;
                         result.dropped = skipped;
                     });
    QObject::connect(&stream, &CCameraStream::frameReady, &loop, [&](const CFrame &frame) {
        tile.showFrame(frame);
        const bool isEnough = counter.add();
        if (counter.hasBegun())
            before = getCpu();
        if (!isEnough)
            return;
        result.framesPerSecond = counter.getRate();
        result.cpuMs = (getCpu() - before) / counter.getSeconds();
        loop.quit();
    });
    while (!tile.getView()->hasImage())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    tile.repaint();
    result.firstImageMs = static_cast<double>(start.elapsed());
    loop.exec();
    QObject::disconnect(&stream, &CCameraStream::ended, nullptr, nullptr);
    // Gives the camera back.
    stream.end();
    stream.waitForEnd(QDeadlineTimer(5000));
    return result;
}

CObjectPointer<ArvDevice> openDevice(const QHostAddress &address)
{
    const CObjectPointer<GInetAddress> own(g_inet_address_new_loopback(G_SOCKET_FAMILY_IPV4));
    const CObjectPointer<GInetAddress> camera(
        g_inet_address_new_from_string(address.toString().toLatin1().constData()));
    CErrorGuard error;
    CObjectPointer<ArvDevice> device(arv_gv_device_new(own.get(), camera.get(), error.receive()));
    if (error)
        qFatal("%s", qPrintable(error.getMessage()));
    return device;
}

/// The library alone.
CResult runBareLoop(const QHostAddress &address)
{
    CResult result;
    QElapsedTimer start;
    start.start();
    const CObjectPointer<ArvDevice> device = openDevice(address);
    arv_gv_device_auto_packet_size(ARV_GV_DEVICE(device.get()), nullptr);
    const CObjectPointer<ArvStream> stream(
        arv_device_create_stream(device.get(), nullptr, nullptr, nullptr));
    if (!stream)
        qFatal("There is no stream.");
    for (int i = 0; i < BARE_BUFFERS; ++i)
        arv_stream_push_buffer(stream.get(), arv_buffer_new(WIDTH * HEIGHT, nullptr));
    arv_device_execute_command(device.get(), "AcquisitionStart", nullptr);
    CCounter counter;
    double before = 0;
    for (bool isEnough = false; !isEnough;) {
        ArvBuffer *const buffer = arv_stream_pop_buffer(stream.get());
        if (arv_buffer_get_status(buffer) != ARV_BUFFER_STATUS_SUCCESS) {
            ++result.incomplete;
        } else {
            if (result.firstImageMs == 0)
                result.firstImageMs = static_cast<double>(start.elapsed());
            isEnough = counter.add();
            if (counter.hasBegun())
                before = getProcessMs(getpid());
        }
        arv_stream_push_buffer(stream.get(), buffer);
    }
    result.framesPerSecond = counter.getRate();
    result.cpuMs = (getProcessMs(getpid()) - before) / counter.getSeconds();
    arv_device_execute_command(device.get(), "AcquisitionStop", nullptr);
    return result;
}

/// Milliseconds of CPU that it costs to make one image, of as many as a stream has buffers, one of
/// the screen's in memory that is there.
double measureConversion()
{
    constexpr int COUNT = 400;
    QImage onScreen(WIDTH, HEIGHT, QImage::Format_RGB32);
    cv::Mat to(HEIGHT, WIDTH, CV_8UC4, onScreen.bits());
    std::vector<cv::Mat> images;
    images.reserve(BARE_BUFFERS);
    for (int i = 0; i < BARE_BUFFERS; ++i)
        images.emplace_back(HEIGHT, WIDTH, CV_8UC1, cv::Scalar(i));
    const double before = getProcessMs(getpid());
    for (int i = 0; i < COUNT; ++i)
        cv::cvtColor(images[static_cast<std::size_t>(i % BARE_BUFFERS)], to, cv::COLOR_GRAY2BGRA);
    return (getProcessMs(getpid()) - before) / COUNT;
}

/// The CPU time, in milliseconds per second, of the library's program once images come.
double measureCameraTest(const QHostAddress &address)
{
    QProcess program;
    program.start(QStringLiteral("arv-camera-test-0.8"), {"--name", address.toString(), "--auto"});
    const auto await = [&program](int milliseconds) {
        if (program.waitForFinished(milliseconds))
            qFatal("arv-camera-test fails.");
    };
    await(WARM_UP_MS);
    QElapsedTimer timer;
    timer.start();
    const double before = getProcessMs(program.processId());
    await(MEASURED_MS);
    const double cpuMs = getProcessMs(program.processId()) - before;
    const double seconds = static_cast<double>(timer.elapsed()) / 1000;
    // By this one it gives the camera back.
    kill(static_cast<pid_t>(program.processId()), SIGINT);
    program.waitForFinished();
    return cpuMs / seconds;
}

/// A camera with so many frames a second, and what finds it.
struct CCamera
{
    explicit CCamera(int framesPerSecond)
        : process(address,
                  {"--size", QStringLiteral("%1x%2").arg(WIDTH).arg(HEIGHT), "--fps",
                   QString::number(framesPerSecond)})
        , task(TestSupport::makeStreamTask(
              {"--no-simulation", "--camera-address", address.toString()}))
    {
    }

    const QHostAddress address = CVirtualCameraProcess::getOwnAddress(1);
    const CVirtualCameraProcess process;
    const Viewer::Stream::CStreamTask task;
};

/// Up to the rate at which the library alone loses frames.
void compareRates()
{
    for (const int rate : {25, 50, 100, 150, 200, 300, 400}) {
        const CCamera camera(rate);
        bool isLimit = false;
        qint64 incomplete = 0;
        qint64 dropped = 0;
        Benchmark::compare(
            qPrintable(QStringLiteral("asked for %1 frames a second").arg(rate)),
            Benchmark::atLeast(0.95),
            [&] {
                const CResult result = runViewer(camera.task);
                incomplete += result.incomplete;
                dropped += result.dropped;
                return result.framesPerSecond;
            },
            [&] {
                const CResult result = runBareLoop(camera.address);
                isLimit |= result.framesPerSecond < 0.98 * rate || result.incomplete > 0;
                return result.framesPerSecond;
            },
            ROUNDS);
        std::printf("  incomplete %lld, dropped for the screen %lld\n",
                    static_cast<long long>(incomplete), static_cast<long long>(dropped));
        if (isLimit) {
            std::printf("  the bare loop's limit\n");
            return;
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Benchmark::printHeader();
    {
        const CCamera camera(25);
        if (TestSupport::reachesOthers()
            || QStandardPaths::findExecutable(QStringLiteral("arv-camera-test-0.8")).isEmpty()) {
            std::printf("No comparison with arv-camera-test: it is not installed, or its broadcast "
                        "would leave this machine.\n");
        } else {
            Benchmark::compare(
                "CPU at 25 frames a second, ms per second", Benchmark::atMost(1.3),
                [&] { return runViewer(camera.task).cpuMs; },
                [&] { return measureCameraTest(camera.address) + 25 * measureConversion(); },
                ROUNDS);
        }
        // A whole frame is 40 ms of it.
        Benchmark::compare(
            "first image, ms (goal: 300) / the library's", Benchmark::atMost(3),
            [&] { return runViewer(camera.task).firstImageMs; },
            [&] { return runBareLoop(camera.address).firstImageMs; }, ROUNDS);
    }
    compareRates();
    return 0;
}
