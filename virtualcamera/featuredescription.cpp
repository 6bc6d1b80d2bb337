#include "featuredescription.h"

#include <QFile>

namespace VirtualCamera {

QByteArray makeFeatureDescription(int bufferLength)
{
    QFile file(QStringLiteral(":/virtualcamera/camera.xml"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The description of the features is not part of the program.");
    QByteArray description = file.readAll();
    description.replace("@BUFFER_LENGTH@", QByteArray::number(bufferLength));
    const int whole = (description.size() + 3) / 4 * 4;
    return description.leftJustified(whole, ' ');
}

} // namespace VirtualCamera
