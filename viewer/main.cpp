#include "viewer/appcore/closesignals.h"
#include "viewer/appcore/commandline.h"
#include "viewer/appcore/languagefont.h"
#include "viewer/appcore/logfolder.h"
#include "viewer/appcore/startguard.h"
#include "viewer/appcore/viewer.h"
#include "viewer/demo/wizarddemo.h"
#include "viewer/files/statefolder.h"
#include "viewer/text/language.h"

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
using Text::CLanguage;

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

// The language is known only when the command line has been read, and what reading it says is to be
// in that language: it is read once more where it asks for another one than the remembered or the
// desktop's.
static AppCore::CCommandLine::EResult
readCommandLine(std::unique_ptr<AppCore::CCommandLine> &commandLine,
                std::unique_ptr<CLanguage> &language)
{
    const QString usual = CLanguage::choose({});
    language = std::make_unique<CLanguage>(usual);
    commandLine = std::make_unique<AppCore::CCommandLine>();
    const auto result = commandLine->parse(QCoreApplication::arguments());
    const QString asked = CLanguage::choose(commandLine->getLanguage());
    if (asked == usual)
        return result;
    language.reset();
    language = std::make_unique<CLanguage>(asked);
    commandLine = std::make_unique<AppCore::CCommandLine>();
    return commandLine->parse(QCoreApplication::arguments());
}

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
    std::unique_ptr<CLanguage> language;
    std::unique_ptr<AppCore::CCommandLine> commandLine;
    switch (readCommandLine(commandLine, language)) {
    case AppCore::CCommandLine::EResult::Message:
        std::fprintf(stdout, "%s\n", qUtf8Printable(commandLine->getMessage()));
        return EXIT_SUCCESS;
    case AppCore::CCommandLine::EResult::Error:
        printError(commandLine->getMessage());
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
    const AppCore::CCloseSignals closeSignals;
    logs.open();
    const QString samplesDirectory = options.samplesDirectory;
    const QString demoDirectory = options.demoDirectory;
    AppCore::CViewer viewer(std::move(options), language, &logs);
    QObject::connect(&closeSignals, &AppCore::CCloseSignals::closeRequested, &viewer,
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

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
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
    std::unique_ptr<CLanguage> language;
    std::unique_ptr<AppCore::CCommandLine> commandLine;
    if (readCommandLine(commandLine, language) != AppCore::CCommandLine::EResult::Start) {
        printError(commandLine->getMessage());
        return USAGE_ERROR;
    }
    const QString languageCode = CLanguage::choose(commandLine->getLanguage());
    AppCore::CCommandLineOptions options = commandLine->takeOptions();
    for (const std::unique_ptr<Camera::ICameraKind> &kind : options.kinds)
        kind->setDataFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    options.journalFolder = Files::getStateFolder(QStringLiteral("updates"));
    AppCore::chooseLanguageFont(languageCode);
    try {
        return runViewer(std::move(options), languageCode, logs);
    } catch (const Core::Exception::BaseException &exception) {
        printError(exception.getMessage());
        return EXIT_FAILURE;
    }
}
