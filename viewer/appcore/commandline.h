#pragma once

#include "viewer/camerapool/camerapool.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Viewer::AppCore {

/// What the viewer was asked for on its command line.
struct CCommandLineOptions
{
    CameraPool::CCameraPoolOptions pool; ///< without the state file
    QStringList pluginDirectories;
    QString language; ///< empty: as remembered
    QString samplesDirectory; ///< empty: none
    QString demoDirectory; ///< empty: no demonstration
};

/// Reads the viewer's command line.
class CCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::AppCore::CCommandLine)

public:
    enum class EResult {
        Start,
        Message, ///< getMessage() answers --help or --version
        Error, ///< getMessage() says what is wrong with the arguments
    };

    /// How many times faster than real cameras a demonstration runs unless told otherwise.
    static constexpr double DemoSpeedFactor = 4.0;

    /// Reads @p arguments, of which the first is the program's name. Needs an application object.
    /// Whatever comes of it, the options' language is what was asked for, to be used for the
    /// message.
    EResult parse(const QStringList &arguments);

    [[nodiscard]] const CCommandLineOptions &getOptions() const;

    /// Without a line end.
    [[nodiscard]] QString getMessage() const;

private:
    CCommandLineOptions m_options;
    QString m_message;
};

} // namespace Viewer::AppCore
