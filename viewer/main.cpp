#include "viewer/appcore/closesignals.h"
#include "viewer/appcore/commandline.h"
#include "viewer/appcore/language.h"
#include "viewer/appcore/logfolder.h"
#include "viewer/appcore/startguard.h"
#include "viewer/appcore/viewer.h"
#include "viewer/demo/wizarddemo.h"

#include "core/baseexception.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

using namespace Viewer;

static constexpr int UsageError = 2;

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

// Help, version and usage errors need no display, unlike everything else.
static bool answersWithoutDisplay(int argc, char **argv, int &exitCode)
{
    const bool asked = std::any_of(argv + 1, argv + argc, [](const char *argument) {
        const QLatin1String text(argument);
        return text == QLatin1String("-h") || text == QLatin1String("--help")
            || text == QLatin1String("--help-all") || text == QLatin1String("-v")
            || text == QLatin1String("--version");
    });
    if (!asked)
        return false;
    const QCoreApplication application(argc, argv);
    const AppCore::CLanguage language(AppCore::CLanguage::choose({}));
    AppCore::CCommandLine commandLine;
    const auto result = commandLine.parse(QCoreApplication::arguments());
    if (result == AppCore::CCommandLine::EResult::Message) {
        std::fprintf(stdout, "%s\n", qUtf8Printable(commandLine.getMessage()));
        exitCode = EXIT_SUCCESS;
        return true;
    }
    printError(commandLine.getMessage());
    exitCode = UsageError;
    return true;
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

static int runViewer(const AppCore::CCommandLineOptions &options, const QString &language,
                     AppCore::CLogFolder &logs)
{
    // From here on a signal closes the window, which waits for updates.
    const AppCore::CCloseSignals closeSignals;
    logs.open();
    AppCore::CViewer viewer(options, language, &logs);
    QObject::connect(&closeSignals, &AppCore::CCloseSignals::closeRequested, &viewer,
                     &AppCore::CViewer::requestClose);
    QObject::connect(&viewer, &AppCore::CViewer::closeDeferred, printError);
    QStringList failures;
    const bool started = viewer.start(failures);
    for (const QString &failure : qAsConst(failures))
        printError(failure);
    if (!started)
        return EXIT_FAILURE;
    if (options.demoDirectory.isEmpty())
        return QCoreApplication::exec();

    Demo::CWizardDemo demo(viewer, options.samplesDirectory, options.demoDirectory);
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
    int exitCode = EXIT_SUCCESS;
    if (answersWithoutDisplay(argc, argv, exitCode))
        return exitCode;
    if (!hasDisplay(argc, argv)) {
        printError(QStringLiteral("There is no display: neither DISPLAY nor WAYLAND_DISPLAY is "
                                  "set. Start it from a desktop, or with QT_QPA_PLATFORM=offscreen "
                                  "to see nothing."));
        return EXIT_FAILURE;
    }

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Rounded, a desktop set to 150 % would get 200 %, which does not fit on small screens.
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QString fault = AppCore::CStartGuard::findFault(argc, argv);
    if (!fault.isEmpty()) {
        printError(fault);
        return UsageError;
    }
    std::optional<AppCore::CStartGuard> startGuard(std::in_place, argc, argv, UsageError);
    const QApplication application(argc, argv);
    startGuard.reset();
    if (!QGuiApplication::primaryScreen()) {
        printError(QStringLiteral("There is no screen to show a window on."));
        return EXIT_FAILURE;
    }
    // The main window alone ends the viewer: between two pages of a wizard no other window shows.
    QApplication::setQuitOnLastWindowClosed(false);
    QString languageCode = AppCore::CLanguage::choose({});
    // What is wrong with the command line is told before its own choice of a language is known.
    auto language = std::make_unique<AppCore::CLanguage>(languageCode);
    AppCore::CCommandLine commandLine;
    if (commandLine.parse(QCoreApplication::arguments()) != AppCore::CCommandLine::EResult::Start) {
        printError(commandLine.getMessage());
        return UsageError;
    }
    AppCore::CCommandLineOptions options = commandLine.getOptions();
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    options.pool.stateFile = QDir(dataFolder).filePath(QStringLiteral("cameras.json"));

    languageCode = AppCore::CLanguage::choose(options.language);
    language.reset();
    language = std::make_unique<AppCore::CLanguage>(languageCode);
    AppCore::CLanguage::chooseFont(languageCode);
    try {
        return runViewer(options, languageCode, logs);
    } catch (const Core::Exception::BaseException &exception) {
        printError(exception.getMessage());
        return EXIT_FAILURE;
    }
}
