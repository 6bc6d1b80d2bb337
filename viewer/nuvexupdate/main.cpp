#include "output.h"
#include "updatecommandline.h"
#include "updateprogram.h"

#include "viewer/commandline/spokencommandline.h"
#include "viewer/process/closesignals.h"

#include "core/baseexception.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>
#include <utility>

using namespace Viewer;
using namespace Viewer::NuvexUpdate;

static int run(CUpdateRequest request, const QString &language)
{
    // From here on a signal ends the series, but no update.
    const Process::CCloseSignals closeSignals;
    std::unique_ptr<CUpdateProgram> program;
    COutput warnings(STDERR_FILENO);
    COutput output(STDOUT_FILENO, [&program](const QString &reason) {
        if (program)
            program->onOutputLost(reason);
    });
    program = std::make_unique<CUpdateProgram>(std::move(request), language, output, warnings);
    int exitCode = EXIT_FAILURE;
    QObject::connect(&closeSignals, &Process::CCloseSignals::closeRequested, program.get(),
                     &CUpdateProgram::requestStop);
    QObject::connect(
        program.get(), &CUpdateProgram::finished, qApp,
        [&exitCode](int code) {
            exitCode = code;
            QCoreApplication::quit();
        },
        Qt::QueuedConnection);
    QTimer::singleShot(0, program.get(), &CUpdateProgram::start);
    QCoreApplication::exec();
    return exitCode;
}

static void printError(const QString &text)
{
    std::fprintf(stderr, "nuvexupdate: %s\n", qUtf8Printable(text));
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Those of the viewer, whose settings, simulated cameras and history are meant.
    QCoreApplication::setOrganizationName(QStringLiteral("Nuvex"));
    QCoreApplication::setApplicationName(QStringLiteral("NuvexViewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VIEWER_VERSION));
    const CommandLine::CSpokenCommandLine<CUpdateCommandLine> commandLine;
    switch (commandLine.getResult()) {
    case CUpdateCommandLine::EResult::Message:
        std::fprintf(stdout, "%s\n", qUtf8Printable(commandLine.getReader().getMessage()));
        return EXIT_SUCCESS;
    case CUpdateCommandLine::EResult::Error:
        printError(commandLine.getReader().getMessage());
        return static_cast<int>(EExitCode::WrongUse);
    case CUpdateCommandLine::EResult::Start:
        break;
    }
    try {
        return run(commandLine.getReader().takeRequest(), commandLine.getLanguage());
    } catch (const Core::Exception::BaseException &exception) {
        printError(exception.getMessage());
        return EXIT_FAILURE;
    }
}
