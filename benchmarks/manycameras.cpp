// What many cameras at once cost: the time of a series by nuvexupdate in multiples of the time of
// one camera, and the memory of a worker.
//
//   bench_manycameras [CAMERAS...]     by default 1 4 16 64

#include "support/virtualcameraprocess.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using TestSupport::CVirtualCameraProcess;

namespace {

constexpr int LOOK_INTERVAL = 20; // milliseconds

struct CCost
{
    double seconds = 0;
    int workerKiB = 0; ///< the most that a worker had in memory
};

/// The most that a child of the process @p parent has had in memory, in KiB.
int getPeakMemory(qint64 parent)
{
    int peak = 0;
    const QStringList processes = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    for (const QString &process : processes) {
        QFile status("/proc/" + process + "/status");
        if (!status.open(QIODevice::ReadOnly))
            continue;
        const QByteArray text = status.readAll();
        if (!text.contains("\nPPid:\t" + QByteArray::number(parent) + '\n'))
            continue;
        const int begin = text.indexOf("VmHWM:") + 6;
        peak = std::max(peak, text.mid(begin, 20).trimmed().split(' ').first().toInt());
    }
    return peak;
}

/// A series over @p count cameras that restart for 5 s, @p parallel of them at a time.
CCost update(int count, int parallel)
{
    std::vector<std::unique_ptr<CVirtualCameraProcess>> cameras;
    QStringList arguments{
        "update",     SAMPLES "/gv-1400m_2.0.0.guf", "--no-simulation", "--all", "--yes",
        "--parallel", QString::number(parallel)};
    for (int number = 1; number <= count; ++number) {
        const QHostAddress address = CVirtualCameraProcess::getOwnAddress(number);
        cameras.push_back(std::make_unique<CVirtualCameraProcess>(
            address,
            QStringList{"--serial", QString::number(50000000 + number), "--reset-ms", "5000"}));
        arguments << "--camera-address" << address.toString();
    }
    CCost cost;
    QElapsedTimer timer;
    timer.start();
    QProcess program;
    program.start(NUVEXUPDATE, arguments);
    while (!program.waitForFinished(LOOK_INTERVAL) && program.state() != QProcess::NotRunning)
        cost.workerKiB = std::max(cost.workerKiB, getPeakMemory(program.processId()));
    cost.seconds = static_cast<double>(timer.elapsed()) / 1000;
    if (program.exitCode() != 0)
        qFatal("The series has failed: %s", program.readAllStandardOutput().constData());
    return cost;
}

double getGoal(int count)
{
    return count <= 16 ? 1.3 : 2;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home;
    for (const char *variable : {"XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, home.path().toUtf8());
    std::vector<int> counts;
    for (const QString &argument : QCoreApplication::arguments().mid(1))
        counts.push_back(argument.toInt());
    if (counts.empty())
        counts = {1, 4, 16, 64};

    const double one = update(1, 1).seconds;
    std::printf("one camera: %.1f s\n", one);
    std::printf("%8s %9s %20s %6s %16s\n", "cameras", "parallel", "in times of one", "goal",
                "worker (MiB)");
    for (const int count : counts) {
        for (const int parallel : {1, count}) {
            const CCost cost = update(count, parallel);
            std::printf("%8d %9d %20.2f %6.1f %16.1f\n", count, parallel, cost.seconds / one,
                        parallel == count ? getGoal(count) : static_cast<double>(count),
                        cost.workerKiB / 1024.0);
            std::fflush(stdout);
            if (count == 1)
                break;
        }
    }
    return 0;
}
