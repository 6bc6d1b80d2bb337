#include "viewer/appcore/commandline.h"
#include "viewer/appcore/languagefont.h"
#include "viewer/appcore/logfolder.h"
#include "viewer/appcore/startguard.h"
#include "viewer/appcore/viewer.h"
#include "viewer/commandline/spokencommandline.h"
#include "viewer/demo/wizarddemo.h"
#include "viewer/files/statefolder.h"
#include "viewer/process/closesignals.h"
#include "viewer/process/installation.h"
#include "viewer/signature/signaturepolicy.h"

#include "core/baseexception.h"

#include <QApplication>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

using namespace Viewer;

static constexpr int USAGE_ERROR = 2;

static void printError(const QString &text)
{
    std::fprintf(stderr, "nuvexviewer: %s\n", qUtf8Printable(text));
}

static void setNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Nuvex"));
    QCoreApplication::setApplicationName(QStringLiteral("NuvexViewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VIEWER_VERSION));
}

using CSpokenCommandLine = CommandLine::CSpokenCommandLine<AppCore::CCommandLine>;

static bool asksForMessage(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        const QLatin1String text(argument);
        return text == QLatin1String("-h") || text == QLatin1String("--help")
            || text == QLatin1String("-v") || text == QLatin1String("--version");
    });
}

// Told in advance, since Qt would only say that it could not connect.
static bool hasDisplay(int argc, char **argv)
{
    const bool chosen = std::any_of(argv + 1, argv + argc, [](const char *argument) {
        const QLatin1String text(argument);
        return text.startsWith(QLatin1String("-platform"))
            || text.startsWith(QLatin1String("--platform"));
    });
    return chosen || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// Help, version and usage errors need no display, unlike everything else. Returns the exit code;
// nothing where the viewer can start.
static std::optional<int> answerWithoutDisplay(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const CSpokenCommandLine commandLine;
    switch (commandLine.getResult()) {
    case AppCore::CCommandLine::EResult::Message:
        std::fprintf(stdout, "%s\n", qUtf8Printable(commandLine.getReader().getMessage()));
        return EXIT_SUCCESS;
    case AppCore::CCommandLine::EResult::Error:
        printError(commandLine.getReader().getMessage());
        return USAGE_ERROR;
    case AppCore::CCommandLine::EResult::Start:
        break;
    }
    if (hasDisplay(argc, argv))
        return std::nullopt;
    printError(QCoreApplication::translate(
        "Viewer",
        "There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set. Start it from "
        "a desktop, or with QT_QPA_PLATFORM=offscreen to see nothing."));
    return EXIT_FAILURE;
}

static int runViewer(AppCore::CCommandLineOptions options, const QString &language,
                     AppCore::CLogFolder &logs)
{
    // From here on a signal closes the window, which waits for updates.
    const Process::CCloseSignals closeSignals;
    logs.open();
    const QString samplesDirectory = options.samplesDirectory;
    const QString demoDirectory = options.demoDirectory;
    AppCore::CViewer viewer(std::move(options), language, &logs);
    QObject::connect(&closeSignals, &Process::CCloseSignals::closeRequested, &viewer,
                     &AppCore::CViewer::requestClose);
    QObject::connect(&viewer, &AppCore::CViewer::closeDeferred, printError);
    QStringList failures;
    const bool started = viewer.start(failures);
    for (const QString &failure : qAsConst(failures))
        printError(failure);
    if (!started)
        return EXIT_FAILURE;
    if (demoDirectory.isEmpty())
        return QCoreApplication::exec();

    Demo::CWizardDemo demo(viewer, samplesDirectory, demoDirectory);
    // Who closes the viewer has ended the demonstration before it knows its outcome.
    int exitCode = EXIT_FAILURE;
    QObject::connect(
        &demo, &Demo::CWizardDemo::finished, qApp,
        [&exitCode](int code) {
            exitCode = code;
            QCoreApplication::quit();
        },
        Qt::QueuedConnection);
    demo.start();
    QCoreApplication::exec();
    return exitCode;
}

int main(int argc, char **argv)
{
    AppCore::CLogFolder logs;
    setNames();
    if (asksForMessage(argc, argv) || !hasDisplay(argc, argv)) {
        if (const std::optional<int> exitCode = answerWithoutDisplay(argc, argv))
            return *exitCode;
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // What Qt 6 does anyway.
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    // Rounded, a desktop set to 150 % would get 200 %, which does not fit on small screens.
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QString fault = AppCore::CStartGuard::findFault(argc, argv);
    if (!fault.isEmpty()) {
        printError(fault);
        return USAGE_ERROR;
    }
    std::optional<AppCore::CStartGuard> startGuard(std::in_place, argc, argv, USAGE_ERROR);
    const QApplication application(argc, argv);
    startGuard.reset();
    if (!QGuiApplication::primaryScreen()) {
        printError(QStringLiteral("There is no screen to show a window on."));
        return EXIT_FAILURE;
    }
    // The main window alone ends the viewer: between two pages of a wizard no other window shows.
    QApplication::setQuitOnLastWindowClosed(false);
    // By which a desktop finds name and icon of the windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("nuvexviewer"));
    const CSpokenCommandLine commandLine;
    if (commandLine.getResult() != AppCore::CCommandLine::EResult::Start) {
        printError(commandLine.getReader().getMessage());
        return USAGE_ERROR;
    }
    AppCore::CCommandLineOptions options = commandLine.getReader().takeOptions();
    for (const std::unique_ptr<Camera::ICameraKind> &kind : options.kinds)
        kind->setDataFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    if (options.samplesDirectory.isEmpty())
        options.samplesDirectory = Process::findSampleFolder();
    options.manual = Process::findManual();
    options.policyFolder = Signature::CSignaturePolicy::getSystemFolder();
    options.configFolder = Files::getConfigFolder();
    options.journalFolder = Files::getStateFolder(QStringLiteral("updates"));
    AppCore::chooseLanguageFont(commandLine.getLanguage());
    try {
        return runViewer(std::move(options), commandLine.getLanguage(), logs);
    } catch (const Core::Exception::BaseException &exception) {
        printError(exception.getMessage());
        return EXIT_FAILURE;
    }
}
