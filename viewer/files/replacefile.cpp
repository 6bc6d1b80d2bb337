#include "replacefile.h"

#include <QSaveFile>

namespace Viewer::Files {

using Text::CErrorText;

CErrorText replaceFile(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    // Behind a buffer, Qt takes the first part of a text that found no more room for the whole.
    const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    const qint64 written = opened ? file.write(text) : -1;
    if (written == text.size() && file.commit())
        return {};
    if (written >= 0 && written < text.size())
        return CErrorText::tr("there is room for %1 of its %2 bytes")
            .arg(QString::number(written), QString::number(text.size()));
    return CErrorText(file.errorString());
}

} // namespace Viewer::Files
