#include "firmwareimage.h"

#include <QList>

namespace Viewer::Camera::Simulation {

static bool isPlainText(const QByteArray &line)
{
    for (const char character : line) {
        if (character < 0x20 || character > 0x7e)
            return false;
    }
    return true;
}

CFirmwareImage CFirmwareImage::parse(const QByteArray &beginning)
{
    CFirmwareImage image;
    int start = 0;
    while (true) {
        const int end = beginning.indexOf('\n', start);
        // A line that has no end within the header's size is not one.
        if (end < 0 || end > MAXIMUM_HEADER_SIZE)
            break;
        const QByteArray line = beginning.mid(start, end - start).trimmed();
        start = end + 1;
        if (line.isEmpty() || !isPlainText(line))
            break;
        const int colon = line.indexOf(':');
        if (colon < 0)
            continue;
        const QByteArray key = line.left(colon).trimmed().toLower();
        const QString value = QString::fromLatin1(line.mid(colon + 1)).simplified();
        if (key == "version")
            image.version = value;
        else if (key == "model")
            image.model = value;
    }
    return image;
}

} // namespace Viewer::Camera::Simulation
