#include "fileend.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Viewer::Files {

CFileEnd CFileEnd::read(const QString &path, qint64 maximumSize)
{
    CFileEnd end;
    const QFileInfo info(path);
    QFile file(path);
    if (info.exists() && !info.isFile()) {
        end.error = tr("It is not a regular file.");
        return end;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        end.error = tr("The file cannot be read: %1.").arg(file.errorString());
        return end;
    }
    const qint64 size = file.size();
    end.isPartial = size > maximumSize;
    if (end.isPartial)
        file.seek(size - maximumSize);
    // Memory is taken for as much as is asked for.
    end.text = file.read(std::min(size, maximumSize));
    if (end.isPartial)
        end.text.remove(0, end.text.indexOf('\n') + 1);
    return end;
}

} // namespace Viewer::Files
