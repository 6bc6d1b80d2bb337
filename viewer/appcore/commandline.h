#pragma once

#include "viewer/camera/camerakinds.h"
#include "viewer/commandline/optionreader.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Viewer::AppCore {

/// What the viewer was asked for on its command line.
struct CCommandLineOptions
{
    Camera::CCameraKinds kinds; ///< not started; each knows what was asked of it
    QStringList pluginDirectories;
    QString language; ///< empty: as remembered
    QString updateFile; ///< to be shown at the start; absolute; empty: none
    QString samplesDirectory; ///< empty: none
    QString manual; ///< its first page; not from the command line; empty: none
    QString demoDirectory; ///< empty: no demonstration
    bool requiresSignature = false; ///< whatever the policy says
    QString policyFolder; ///< the computer's owner's; not from the command line; empty: none
    QString configFolder; ///< the user's; not from the command line; empty: none
    QString journalFolder; ///< of running updates; not from the command line; empty: none
};

/// Reads the viewer's command line.
class CCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::AppCore::CCommandLine)

public:
    using EResult = CommandLine::COptionReader::EResult;

    /// Reads @p arguments, of which the first is the program's name. Needs an application object.
    /// Whatever comes of it, the language is what was asked for, to be used for the message. Once
    /// only.
    EResult parse(const QStringList &arguments);

    [[nodiscard]] QString getLanguage() const;

    /// Once only.
    [[nodiscard]] CCommandLineOptions takeOptions();

    /// Without a line end.
    [[nodiscard]] QString getMessage() const;

private:
    [[nodiscard]] QVector<CommandLine::COption> getOptions();
    [[nodiscard]] bool takeUpdateFile(const QStringList &arguments);

    CCommandLineOptions m_options;
    QString m_message;
};

} // namespace Viewer::AppCore
