#pragma once

#include "cameraswitch.h"
#include "ecamerapresence.h"
#include "icameradevicefactory.h"
#include "icameraenumerator.h"
#include "icamerahandle.h"
#include "icamerastream.h"
#include "viewer/commandline/option.h"
#include "viewer/text/libraryversion.h"

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

    /// What this kind works with.
    [[nodiscard]] virtual QVector<Text::CLibraryVersion> getLibraries() const;

    /// The title of the menu with the switches, with its mnemonic; empty: they stand among the
    /// program's own entries.
    [[nodiscard]] virtual QString getMenuTitle() const;
    [[nodiscard]] virtual QVector<CCameraSwitch> getSwitches();

    // After start():

    /// For having another process work with the camera. Null: there is no such camera.
    [[nodiscard]] virtual std::unique_ptr<ICameraHandle>
    createHandle(const QString &cameraId) const = 0;

    /// Does not ask the camera.
    [[nodiscard]] virtual ECameraPresence getPresence(const QString &cameraId) const = 0;

    /// Ends what other applications do with the cameras, as far as that can be done from here.
    virtual void freeCameras();

    // In the other process, instead of all that stands above:

    /// The device of the camera that an ICameraHandle has described, maybe of another version of
    /// this program: anything may be in @p description. Null: it is no description.
    [[nodiscard]] virtual std::unique_ptr<ICameraDevice> makeDevice(const QCborMap &description)
        = 0;

    /// The images of such a camera. Null: it is no description.
    [[nodiscard]] virtual std::unique_ptr<ICameraStream> makeStream(const QCborMap &description)
        = 0;

    /// How the camera of makeDevice() is now, for ICameraHandle::end(). Any thread.
    [[nodiscard]] virtual QCborMap describeMade() const;

    /// How many times longer than they may, operations with the camera of makeDevice() take; at
    /// least 1.
    [[nodiscard]] virtual double getSlownessOfMade() const;

    /// The camera of makeDevice() was taken away, which its device does not know. Any thread.
    virtual void loseMade();

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
