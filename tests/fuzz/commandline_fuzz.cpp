#include "fuzztarget.h"
#include "viewer/appcore/commandline.h"

using Viewer::AppCore::CCommandLine;

/// Whatever the arguments are, one a line, the viewer starts or says something and ends.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argumentCount = 1;
    static char name[] = "nuvexviewer";
    static char *arguments[] = {name, nullptr};
    static const QCoreApplication application(argumentCount, arguments);

    CCommandLine commandLine;
    const QString lines = QString::fromUtf8(Fuzz::toBytes(data, size));
    const auto result = commandLine.parse(QStringList(name) + lines.split('\n'));
    const bool starts = result == CCommandLine::EResult::Start;
    Fuzz::require(commandLine.getMessage().isEmpty() == starts);
    return 0;
}
