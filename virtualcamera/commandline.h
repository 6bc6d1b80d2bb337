#pragma once

#include "camerasettings.h"
#include "viewer/commandline/optionreader.h"

#include <QString>
#include <QStringList>

namespace VirtualCamera {

/// The program's arguments, read and checked.
class CCommandLine
{
public:
    using EResult = Viewer::CommandLine::COptionReader::EResult;

    CCameraSettings settings;
    QString flashFile;
    int maximumSeconds = 600; ///< then the program ends by itself

    QString message;

    EResult parse(const QStringList &arguments);

private:
    [[nodiscard]] QVector<Viewer::CommandLine::COption> getOptions();
};

} // namespace VirtualCamera
