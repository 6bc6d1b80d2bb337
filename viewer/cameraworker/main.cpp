#include "cameraimages.h"
#include "cameraupdate.h"
#include "confinement.h"
#include "messagewriter.h"

#include "viewer/process/cbormessages.h"
#include "viewer/text/language.h"

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
static const QString WRONG_ARGUMENTS
    = QStringLiteral("it is started by the viewer, with the argument \"update\" or \"stream\"");

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

/// Reads the task, one CBOR map, from standard input, which stays open. What stands behind it is in
/// @p rest.
static std::optional<QCborMap> readTask(QString &fault, QByteArray &rest)
{
    while (true) {
        char block[4096];
        const ssize_t count = ::read(STDIN_FILENO, block, sizeof(block));
        if (count < 0 && errno == EINTR)
            continue;
        if (count > 0)
            rest.append(block, static_cast<int>(count));
        if (!Process::isBounded(rest)) {
            fault = QStringLiteral("the task has more than %1 bytes, or too many parts")
                        .arg(Process::MAXIMUM_MESSAGE);
            return std::nullopt;
        }
        bool isBroken = false;
        const std::optional<QCborMap> map = Process::takeMessage(rest, isBroken);
        if (map)
            return map;
        if (isBroken)
            fault = QStringLiteral("the task is no CBOR map");
        else if (count <= 0)
            fault = QStringLiteral("the task is cut off after %1 bytes").arg(rest.size());
        else
            continue;
        return std::nullopt;
    }
}

/// Reads what comes behind the task, until nobody can send anything any more.
static void readControl(CameraWorker::CCameraUpdate &update, QByteArray bytes)
{
    char block[256];
    while (true) {
        bool isBroken = false;
        while (const std::optional<QCborMap> message = Process::takeMessage(bytes, isBroken)) {
            if (message->value(QStringLiteral("lost")).toBool())
                update.loseCamera();
        }
        const ssize_t count = isBroken ? 0 : ::read(STDIN_FILENO, block, sizeof(block));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        bytes.append(block, static_cast<int>(count));
    }
}

static int refuse(const QString &fault)
{
    std::fprintf(stderr, "nuvexcameraworker: %s\n", qUtf8Printable(fault));
    return WRONG_USE;
}

static int updateCamera(const QStringList &options)
{
    handleSignals();
    bool trustsDescriptions = false;
    int patiencePercent = 100;
    if (!takeTestOptions(options, trustsDescriptions, patiencePercent))
        return refuse(WRONG_ARGUMENTS);
    QString fault;
    QByteArray rest;
    const std::optional<QCborMap> map = readTask(fault, rest);
    std::optional<CWorkerTask> task = map ? CWorkerTask::fromCbor(*map, fault) : std::nullopt;
    if (!task)
        return refuse(fault);
    if (trustsDescriptions)
        task->camera.insert(QStringLiteral("isDescriptionTrusted"), true);
    const Text::CLanguage language(task->language);
    CameraWorker::CMessageWriter events(STDOUT_FILENO);
    CameraWorker::CCameraUpdate update(events, isCanceled, patiencePercent);
    // It waits in read(2) at the end, so the process ends without it.
    std::thread(readControl, std::ref(update), rest).detach();
    const bool isUpdated = update.perform(*task);
    std::_Exit(isUpdated ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// Nothing is at stake here: a signal, or a viewer that has gone, ends it.
static int showCamera()
{
    std::signal(SIGPIPE, SIG_IGN);
    QString fault;
    QByteArray rest;
    const std::optional<QCborMap> map = readTask(fault, rest);
    const std::optional<Stream::CStreamTask> task
        = map ? Stream::CStreamTask::fromCbor(*map, fault) : std::nullopt;
    if (!task)
        return refuse(fault);
    const Text::CLanguage language(task->language);
    CameraWorker::CMessageWriter events(STDOUT_FILENO);
    CameraWorker::CCameraImages images(events);
    return images.serve(*task, STDIN_FILENO, rest) ? EXIT_SUCCESS : EXIT_FAILURE;
}

int main(int argc, char **argv)
{
    CameraWorker::confineProcess();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("nuvexcameraworker"));
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("update"))
        return updateCamera(arguments.mid(1));
    if (arguments == QStringList(QStringLiteral("stream")))
        return showCamera();
    return refuse(WRONG_ARGUMENTS);
}
