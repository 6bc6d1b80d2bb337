#include "entryfit.h"

#include "viewer/text/visibletext.h"
#include "viewer/updatefile/firmwareversion.h"

namespace Viewer::Update {

using Text::CErrorText;
using Text::shorten;

static QString join(const QStringList &texts)
{
    return shorten(texts.join(QStringLiteral(", ")));
}

CErrorText findMisfit(const Plugin::CameraPool::ICameraInfo &camera,
                      const UpdateFile::CUpdateEntry &entry)
{
    if (!entry.models.contains(camera.getModelName()))
        return CErrorText::tr("it is for the model %1").arg(join(entry.models));
    if (!entry.deviceVersions.isEmpty()
        && !entry.deviceVersions.contains(camera.getDeviceVersion()))
        return CErrorText::tr("it is for the device version %1, the camera has %2")
            .arg(join(entry.deviceVersions), shorten(camera.getDeviceVersion()));
    // Where the version is not known yet, the update itself will find out.
    if (!camera.getFirmwareVersion().isEmpty()
        && UpdateFile::isBelow(camera.getFirmwareVersion(), entry.minimumVersion))
        return CErrorText::tr("it needs firmware version %1 or newer, the camera has %2")
            .arg(shorten(entry.minimumVersion), shorten(camera.getFirmwareVersion()));
    return {};
}

} // namespace Viewer::Update
