#pragma once

#include "camerapool/icamerainfo.h"
#include "core/iservice.h"
#include "core/loglevel.h"

#include <QPoint>
#include <QSharedPointer>
#include <QSize>
#include <QString>

namespace Plugin::FirmwareUpdater {

/// The plug-in's own service: the wizard's controller, as its steps and the plug-in's entry see it.
/// What it remembers lasts as long as the host runs. GUI thread only.
class IFirmwareUpdaterService : public Core::Service::IService
{
    Q_OBJECT

public:
    using IService::IService;

    /// Builds the dialogs and the steps. The host's services are all published by now.
    virtual bool postInitialize() = 0;

    /// Starts the wizard. While a camera is busy, the user is asked first whether to stop all
    /// cameras; without a Yes nothing happens.
    virtual void startFirmwareUpdater() = 0;

    /// Address of the maker's support page in the user's language.
    virtual QString getKorvaneSupportUrl() const = 0;

    /// The camera last selected in the host, or null; it stays remembered when the selection goes.
    virtual QSharedPointer<Plugin::CameraPool::ICameraInfo> getSelectedCamera() const = 0;
    virtual void setSelectedCamera(QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) = 0;

    /// True when @p camera reports that it can be updated; false for null.
    virtual bool isCompatibleCamera(QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) = 0;

    /// Absolute path of the chosen update file in native form, whether or not it is usable.
    virtual QString getSelectedUpdatePath() const = 0;

    /// Begins a new log file in the temporary directory, in place of one that is open.
    virtual void openTemporaryLogFile() = 0;

    /// Writes one line, which is on disk when the call returns, and returns @p message. Opens a log
    /// file when there is none; ignores an empty message.
    virtual QString addTemporaryLogMessage(const Core::Logging::ELogLevel &level,
                                           const QString &message)
        = 0;

    /// Absolute path of the open log file; empty when there is none.
    virtual QString getCurrentTemporaryLogFilePath() const = 0;

    /// The failure of the current run in the user's language; empty when there was none.
    virtual QString getUpdateFailureMessage() const = 0;

    /// Stores @p message, a text in the language of the sources.
    virtual void setUpdateFailureMessage(const QString &message) = 0;

    /// Closes the log file, which stays on disk, and forgets the failure message.
    virtual void closeTemporaryLogFile() = 0;

    /// Place, size and state that the wizard's pages share. The size is invalid as long as no page
    /// has been left.
    virtual void setDialogPos(const QPoint &pos) = 0;
    virtual QPoint getDialogPos() const = 0;
    virtual void setDialogSize(const QSize &size) = 0;
    virtual QSize getDialogSize() const = 0;
    virtual void setDialogWindowState(const Qt::WindowStates &state) = 0;
    virtual Qt::WindowStates getDialogWindowState() const = 0;

public slots:
    /// Shows the host's new enumeration result in a wizard that is open.
    virtual void onEnumerationChanged() = 0;
};

} // namespace Plugin::FirmwareUpdater
