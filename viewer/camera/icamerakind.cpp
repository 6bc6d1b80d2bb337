#include "icamerakind.h"

namespace Viewer::Camera {

ICameraKind::ICameraKind(QObject *parent)
    : QObject(parent)
{
}

ICameraKind::~ICameraKind() = default;

void ICameraKind::setDataFolder(const QString &)
{
}

void ICameraKind::prepareDemonstration()
{
}

void ICameraKind::start()
{
}

QString ICameraKind::getMenuTitle() const
{
    return {};
}

QVector<Text::CLibraryVersion> ICameraKind::getLibraries() const
{
    return {};
}

QVector<CCameraSwitch> ICameraKind::getSwitches()
{
    return {};
}

void ICameraKind::freeCameras()
{
}

QCborMap ICameraKind::describeMade() const
{
    return {};
}

double ICameraKind::getSlownessOfMade() const
{
    return 1.0;
}

void ICameraKind::loseMade()
{
}

} // namespace Viewer::Camera
