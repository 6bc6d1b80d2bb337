#include "cameraupdate.h"
#include "confinement.h"

#include "viewer/text/language.h"
#include "viewer/update/cborbounds.h"

#include <QCborStreamReader>
#include <QCborValue>
#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <thread>
#include <unistd.h>

using namespace Viewer;
using Update::CWorkerTask;

static constexpr int WRONG_USE = 2;

static volatile std::sig_atomic_t isCanceled = 0;

static void cancel(int)
{
    isCanceled = 1;
}

static void handleSignals()
{
    struct sigaction action
    {
    };
    action.sa_handler = cancel;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaction(number, &action, nullptr);
    // Nobody listens any more: the update goes on.
    std::signal(SIGPIPE, SIG_IGN);
}

/// Takes what stands behind the command, for tests alone: what a camera does to the library that
/// the viewer keeps from it otherwise, and in less time.
static bool takeTestOptions(const QStringList &options, bool &trustsDescriptions,
                            int &patiencePercent)
{
    bool isNumber = true;
    for (int i = 0; i < options.size(); ++i) {
        if (options.at(i) == QLatin1String("--unchecked-descriptions"))
            trustsDescriptions = true;
        else if (options.at(i) == QLatin1String("--patience-percent"))
            patiencePercent = options.value(++i).toInt(&isNumber);
        else
            return false;
    }
    return isNumber && patiencePercent > 0 && patiencePercent <= 100;
}

/// Reads one CBOR map. Standard input stays open behind it.
static std::optional<CWorkerTask> readTask(QString &fault)
{
    QByteArray bytes;
    while (true) {
        char block[4096];
        const ssize_t count = ::read(STDIN_FILENO, block, sizeof(block));
        if (count < 0 && errno == EINTR)
            continue;
        if (count > 0)
            bytes.append(block, static_cast<int>(count));
        if (!Update::isBounded(bytes)) {
            fault = QStringLiteral("the task has more than %1 bytes, or too many parts")
                        .arg(Update::MAXIMUM_MESSAGE);
            return std::nullopt;
        }
        QCborParserError error;
        const QCborValue value = QCborValue::fromCbor(bytes, &error);
        if (error.error == QCborError::NoError && value.isMap())
            return CWorkerTask::fromCbor(value.toMap(), fault);
        if (error.error == QCborError::NoError)
            fault = QStringLiteral("the task is no CBOR map");
        else if (error.error != QCborError::EndOfFile)
            fault = QStringLiteral("the task is no CBOR: %1").arg(error.errorString());
        else if (count <= 0)
            fault = QStringLiteral("the task is cut off after %1 bytes").arg(bytes.size());
        else
            continue;
        return std::nullopt;
    }
}

/// Reads what comes behind the task, until nobody can send anything any more.
static void readControl(CameraWorker::CCameraUpdate &update)
{
    QByteArray bytes;
    char block[256];
    while (true) {
        const ssize_t count = ::read(STDIN_FILENO, block, sizeof(block));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        bytes.append(block, static_cast<int>(count));
        if (!Update::isBounded(bytes))
            return;
        QCborParserError error;
        const QCborValue value = QCborValue::fromCbor(bytes, &error);
        if (error.error == QCborError::EndOfFile)
            continue;
        if (value.toMap().value(QStringLiteral("lost")).toBool())
            update.loseCamera();
        bytes.clear();
    }
}

int main(int argc, char **argv)
{
    CameraWorker::confineProcess();
    handleSignals();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("nuvexcameraworker"));
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    QString fault;
    bool trustsDescriptions = false;
    int patiencePercent = 100;
    if (arguments.value(0) != QLatin1String("update")
        || !takeTestOptions(arguments.mid(1), trustsDescriptions, patiencePercent))
        fault = QStringLiteral("it is started by the viewer, with the argument \"update\"");
    std::optional<CWorkerTask> task;
    if (fault.isEmpty())
        task = readTask(fault);
    if (!task) {
        std::fprintf(stderr, "nuvexcameraworker: %s\n", qUtf8Printable(fault));
        return WRONG_USE;
    }
    if (trustsDescriptions)
        task->camera.insert(QStringLiteral("isDescriptionTrusted"), true);
    const Text::CLanguage language(task->language);
    CameraWorker::CEventWriter events(STDOUT_FILENO);
    CameraWorker::CCameraUpdate update(events, isCanceled, patiencePercent);
    // It waits in read(2) at the end, so the process ends without it.
    std::thread(readControl, std::ref(update)).detach();
    const bool isUpdated = update.perform(*task);
    std::_Exit(isUpdated ? EXIT_SUCCESS : EXIT_FAILURE);
}
