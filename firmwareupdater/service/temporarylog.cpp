#include "temporarylog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace Plugin::FirmwareUpdater::Internal::Service {

CTemporaryLog::CTemporaryLog() = default;

CTemporaryLog::~CTemporaryLog()
{
    if (m_file)
        m_file->deleteLater();
}

void CTemporaryLog::open()
{
    QString folder = QDir::tempPath();
    if (!folder.endsWith(QDir::separator()))
        folder += QDir::separator();
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_HHmmss"));
    m_file = new QFile(folder + QStringLiteral("NuvexFirmwareUpdaterGUI_") + time
                       + QStringLiteral(".log"));
    if (m_file->open(QIODevice::WriteOnly))
        m_file->setTextModeEnabled(true);
}

bool CTemporaryLog::isHeld() const
{
    return m_file;
}

void CTemporaryLog::addLine(const QString &level, const QString &message)
{
    if (!m_file || !m_file->isOpen())
        return;
    m_file->write(QStringLiteral("%1 %2 %3\n").arg(getTimeText(), level, message).toUtf8());
    // Slow but complete: should the host die during an update, the last line tells how far it had
    // come.
    m_file->flush();
}

void CTemporaryLog::close()
{
    if (!m_file)
        return;
    m_file->flush();
    m_file->close();
    m_file->deleteLater();
    m_file.clear();
}

QString CTemporaryLog::getFilePath() const
{
    return m_file ? QFileInfo(*m_file).absoluteFilePath() : QString();
}

const QString &CTemporaryLog::getTimeText()
{
    const qint64 second = QDateTime::currentSecsSinceEpoch();
    // An empty zone is UTC, none is that of the system.
    const QByteArray zone = qgetenv("TZ");
    if (m_timeText.isEmpty() || second != m_timeTextSecond || zone != m_timeTextZone
        || zone.isNull() != m_timeTextZone.isNull()) {
        m_timeText = QDateTime::fromSecsSinceEpoch(second).toString(Qt::TextDate);
        m_timeTextSecond = second;
        m_timeTextZone = zone;
    }
    return m_timeText;
}

} // namespace Plugin::FirmwareUpdater::Internal::Service
