#pragma once

#include "viewer/appcore/commandline.h"

namespace TestSupport {

/// The options of a viewer that is started with @p arguments.
inline Viewer::AppCore::CCommandLineOptions readOptions(const QStringList &arguments)
{
    using Viewer::AppCore::CCommandLine;
    CCommandLine commandLine;
    if (commandLine.parse(QStringList(QStringLiteral("nuvexviewer")) + arguments)
        != CCommandLine::EResult::Start)
        qFatal("%s", qUtf8Printable(commandLine.getMessage()));
    return commandLine.takeOptions();
}

} // namespace TestSupport
