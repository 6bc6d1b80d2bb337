#pragma once

#include "cameraswitch.h"
#include "ecamerapresence.h"
#include "icameradevicefactory.h"
#include "icameraenumerator.h"
#include "viewer/commandline/option.h"

#include <QCborMap>
#include <QObject>
#include <QVector>

#include <memory>
#include <vector>

namespace Viewer::Camera {

/// All that a program knows of one kind of cameras: how to look for them, how to make their
/// devices, and the options and switches that only this kind understands. GUI thread, but for
/// enumerate() and cancel().
class ICameraKind : public QObject, public ICameraDeviceFactory, public ICameraEnumerator
{
    Q_OBJECT

public:
    explicit ICameraKind(QObject *parent = nullptr);
    ~ICameraKind() override;

    /// "simulation", "genicam": the kind among others, the same in every version.
    [[nodiscard]] virtual QString getName() const = 0;

    // Before start():

    /// What can be asked of this kind on a command line. Taking an option changes this object.
    [[nodiscard]] virtual QVector<CommandLine::COption> getOptions() = 0;

    /// Where things may be remembered from one start to the next; without a call nowhere.
    virtual void setDataFolder(const QString &folder);

    /// The program will show itself, to somebody who does not want to wait. Options still win.
    virtual void prepareDemonstration();

    /// Makes the cameras known. Throws `Core::Exception::BaseException` when what the options say
    /// cannot be used.
    virtual void start();

    // At any time:

    /// The title of the menu with the switches, with its mnemonic; empty: they stand among the
    /// program's own entries.
    [[nodiscard]] virtual QString getMenuTitle() const;
    [[nodiscard]] virtual QVector<CCameraSwitch> getSwitches();

    // After start():

    /// All that another process needs to make the device of the camera with createDevice(); empty:
    /// there is no such camera.
    [[nodiscard]] virtual QCborMap describeCamera(const QString &cameraId) const = 0;

    /// The device of a camera that describeCamera() has described in another process, maybe of
    /// another version: anything may be in @p description. Null: it is no description. Needs no
    /// start().
    [[nodiscard]] virtual std::unique_ptr<ICameraDevice>
    makeDevice(const QCborMap &description) const = 0;

    /// Does not ask the camera.
    [[nodiscard]] virtual ECameraPresence getPresence(const QString &cameraId) const = 0;

    /// Whether the viewer can show images of these cameras.
    [[nodiscard]] virtual bool hasImages() const = 0;

    /// Ends what other applications do with the cameras, as far as that can be done from here.
    virtual void freeCameras();

Q_SIGNALS:
    /// Another enumeration would have another result.
    void camerasChanged();

    /// The user wants another enumeration, and to be told even of the same result.
    void refreshWanted();

    /// The presence of a camera has changed.
    void cameraStateChanged(const QString &cameraId);
};

using CCameraKinds = std::vector<std::unique_ptr<ICameraKind>>;

} // namespace Viewer::Camera
