#pragma once

#include "camerasettings.h"

#include <QString>
#include <QStringList>

namespace VirtualCamera {

/// The program's arguments, read and checked.
struct CCommandLine
{
    enum class EResult {
        Start,
        Help, ///< `message` is the help text
        Error, ///< `message` says what is wrong with which argument
    };

    CCameraSettings settings;
    QString flashFile;
    int maximumSeconds = 600; ///< then the program ends by itself

    QString message;

    EResult parse(const QStringList &arguments);
};

} // namespace VirtualCamera
