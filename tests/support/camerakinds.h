#pragma once

#include "viewer/camera/camerakinds.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/commandline/optionreader.h"

#include <QStringList>

#include <memory>

namespace TestSupport {

/// All kinds of cameras, with what a program's @p arguments ask of them and the versions of
/// simulated ones remembered in @p dataFolder; empty: nowhere. Null, where the arguments are no
/// good.
inline Viewer::Camera::CCameraKinds makeCameraKinds(const QStringList &arguments,
                                                    const QString &dataFolder = QString())
{
    using Viewer::CommandLine::COptionReader;
    Viewer::Camera::CCameraKinds kinds = Viewer::Camera::makeCameraKinds();
    COptionReader reader(QStringLiteral("test"), {}, {});
    for (const auto &kind : kinds)
        reader.add(kind->getOptions());
    if (reader.parse(QStringList(QStringLiteral("test")) + arguments)
        != COptionReader::EResult::Start) {
        qWarning("%s", qUtf8Printable(reader.getMessage()));
        return {};
    }
    for (const auto &kind : kinds) {
        if (!dataFolder.isEmpty())
            kind->setDataFolder(dataFolder);
    }
    return kinds;
}

/// What the user does in a menu: "plugged:<id>", "busy:<id>". False: there is no such switch.
inline bool setSwitch(const Viewer::CameraPool::CCameraPool &pool, const QString &id, bool on)
{
    for (const auto &kind : pool.getKinds()) {
        const auto switches = kind->getSwitches();
        for (const Viewer::Camera::CCameraSwitch &entry : switches) {
            if (entry.id != id)
                continue;
            entry.set(on);
            return true;
        }
    }
    return false;
}

} // namespace TestSupport
