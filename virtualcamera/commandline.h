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

    // On an emulated USB; settings.transport tells whether it is there.
    QStringList usbCommand; ///< a program that sees the bus, with its arguments
    bool hasTwin = false; ///< a second camera that says that it is the same one
    bool isForbidden = false; ///< nobody may open the camera

    QString message;

    EResult parse(QStringList arguments);

private:
    [[nodiscard]] QVector<Viewer::CommandLine::COption> getOptions();
    [[nodiscard]] QVector<Viewer::CommandLine::COption> getEthernetOptions();
    [[nodiscard]] QVector<Viewer::CommandLine::COption> getUsbOptions();
};

} // namespace VirtualCamera
