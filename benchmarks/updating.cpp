#include "comparison.h"

#include "state/firmwareupdatingstep.h"
#include "support/updaterfixture.h"
#include "view/firmwareupdatedialog.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>

#include <fcntl.h>
#include <string>
#include <unistd.h>

using namespace Plugin::FirmwareUpdater::Internal;
using EStep = Plugin::CameraPool::EFirmwareUpdateStep;
using TestSupport::CScriptedUpdate;
using TestSupport::CUpdaterFixture;

namespace {

constexpr int LINE_COUNT = 10000;
constexpr unsigned int ESTIMATE_MS = 8000;

/// Step 4 with its page on the screen, ready for a series.
class CSeries
{
public:
    CSeries()
        : m_step(&m_fixture.host.initializer, &m_dialog, nullptr)
    {
        m_dialog.setModel(m_fixture.model);
        m_fixture.service->openTemporaryLogFile();
    }
    ~CSeries() { m_step.onExit(nullptr); }

    /// @p makeJob makes the job of each camera.
    void enter(int cameraCount, const std::function<CScriptedUpdate *()> &makeJob)
    {
        QList<CUpdaterFixture::Entity *> cameras;
        for (int i = 0; i < cameraCount; ++i)
            cameras.append(CUpdaterFixture::makeTickedCamera({QString::number(i)}, makeJob()));
        m_fixture.model->setCameraDeviceList(cameras);
        m_step.onEntry(nullptr);
        QCoreApplication::processEvents();
    }

    State::CFirmwareUpdatingStep &step() { return m_step; }
    CUpdaterFixture &fixture() { return m_fixture; }

private:
    CUpdaterFixture m_fixture;
    View::CFirmwareUpdateDialog m_dialog;
    State::CFirmwareUpdatingStep m_step;
};

void setTimeZone(const char *zone)
{
    if (zone)
        qputenv("TZ", zone);
    else
        qunsetenv("TZ");
    tzset();
}

/// The bytes of the last line of the log.
std::string getLastLine(const CUpdaterFixture &fixture)
{
    QFile log(fixture.service->getCurrentTemporaryLogFilePath());
    if (!log.open(QIODevice::ReadOnly))
        qFatal("no log");
    return (log.readAll().trimmed().split('\n').last() + '\n').toStdString();
}

/// Writes @p line as often as the log is written.
double writeBare(const QString &folder, const std::string &line)
{
    const std::string path = QFile::encodeName(folder + QStringLiteral("/bare")).toStdString();
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const double ms = Benchmark::measureThreadMs([file, &line] {
        for (int i = 0; i < LINE_COUNT; ++i)
            if (write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
                qFatal("cannot write");
    });
    close(file);
    return ms;
}

void compareLogLines(const char *measure, const char *zone)
{
    setTimeZone(zone);
    CUpdaterFixture fixture;
    const QString message = QStringLiteral("FileUpload progress: 50%");
    const auto logLines = [&] {
        fixture.service->openTemporaryLogFile();
        return Benchmark::measureThreadMs([&] {
            for (int i = 0; i < LINE_COUNT; ++i)
                fixture.service->addTemporaryLogMessage(Core::Logging::ELogLevel::Info, message);
        });
    };
    static_cast<void>(logLines());
    const std::string line = getLastLine(fixture);
    Benchmark::compare(measure, Benchmark::atMost(1.8), logLines,
                       [&] { return writeBare(fixture.temporaryFolder.path(), line); });
    setTimeZone(nullptr);
}

void compareProgress()
{
    CSeries series;
    auto *const job = new CScriptedUpdate;
    job->begin(ESTIMATE_MS).beginStep(EStep::FileUpload, ESTIMATE_MS).hold();
    series.enter(1, [job] { return job; });
    while (!job->isHeld())
        QCoreApplication::processEvents();
    QCoreApplication::processEvents();

    const auto tellProgress = [&] {
        return Benchmark::measureThreadMs([&] {
            for (int i = 0; i < LINE_COUNT; ++i) {
                series.step().onFirmwareUpdateProgressStepProgressChanged(EStep::FileUpload,
                                                                          i * 100.0 / LINE_COUNT);
            }
        });
    };
    static_cast<void>(tellProgress());
    const std::string line = getLastLine(series.fixture());
    Benchmark::compare("10,000 signals of progress / write(2)", Benchmark::atMost(7), tellProgress,
                       [&] { return writeBare(series.fixture().temporaryFolder.path(), line); });
    job->release();
}

/// Milliseconds of the GUI thread for each camera of a series of @p cameraCount instant jobs.
double updateCameras(int cameraCount)
{
    CSeries series;
    QEventLoop loop;
    QObject::connect(&series.step(), &State::CFirmwareUpdatingStep::firmwareUpdateDone, &loop,
                     &QEventLoop::quit);
    return Benchmark::measureThreadMs([&] {
               series.enter(cameraCount, [] {
                   auto *const job = new CScriptedUpdate;
                   job->begin(ESTIMATE_MS)
                       .beginStep(EStep::FileUpload, ESTIMATE_MS)
                       .progress(EStep::FileUpload, 50)
                       .endStep(EStep::FileUpload, ESTIMATE_MS)
                       .done();
                   return job;
               });
               loop.exec();
           })
        / cameraCount;
}

} // namespace

/// Prints what a series of updates costs the GUI thread: log lines and signals of progress against
/// bare writes of the same bytes, and each camera of a long series against one of a short series,
/// in milliseconds.
int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);

    Benchmark::printHeader();
    compareLogLines("10,000 log lines / write(2)", nullptr);
    compareLogLines("10,000 log lines / write(2), TZ set", "Europe/Berlin");
    compareProgress();
    Benchmark::compare(
        "ms per camera, 5,000 cameras / 100", Benchmark::atMost(1.2),
        [] { return updateCameras(5000); }, [] { return updateCameras(100); }, 3);
    return 0;
}
