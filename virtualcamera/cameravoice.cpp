#include "cameravoice.h"

#include <QSaveFile>

namespace VirtualCamera {

CCameraVoice::CCameraVoice(std::FILE *output, const QString &flashFile)
    : m_output(output)
    , m_flashFile(flashFile)
{
}

void CCameraVoice::printLine(const QByteArray &line)
{
    std::fputs((line + '\n').constData(), m_output);
    // Whoever started the camera waits for single lines.
    std::fflush(m_output);
}

static QString cannotWrite(const QSaveFile &file)
{
    return QStringLiteral("The file %1 cannot be written: %2.")
        .arg(file.fileName(), file.errorString());
}

bool CCameraVoice::check(QString &error) const
{
    QSaveFile flash(m_flashFile);
    if (!m_flashFile.isEmpty() && !flash.open(QIODevice::WriteOnly)) {
        error = cannotWrite(flash);
        return false;
    }
    flash.cancelWriting();
    return true;
}

void CCameraVoice::onEvent(const QByteArray &event)
{
    printLine("EVENT " + event);
}

void CCameraVoice::onFileClosed(const QByteArray &content)
{
    if (m_flashFile.isEmpty())
        return;
    QSaveFile file(m_flashFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        std::fprintf(stderr, "virtualcamera: %s\n", qPrintable(cannotWrite(file)));
}

void CCameraVoice::printStatistics(const CStatistics &statistics, const CStreamStatistics &stream,
                                   qint64 uploadedBytes)
{
    const auto number = [](const char *name, qint64 value) {
        return QByteArray(" ") + name + '=' + QByteArray::number(value);
    };
    printLine(
        "STATS" + number("discovery", statistics.discoveries)
        + number("readreg", statistics.registerReads)
        + number("writereg", statistics.registerWrites) + number("readmem", statistics.memoryReads)
        + number("writemem", statistics.memoryWrites) + number("repeated", statistics.repeated)
        + number("lost", statistics.lost) + number("dropped", statistics.dropped)
        + number("uploaded", uploadedBytes) + number("frames", stream.frames)
        + number("packets", stream.packets) + number("lostpackets", stream.lost)
        + number("resent", stream.resent) + number("unavailable", stream.unavailable));
}

} // namespace VirtualCamera
