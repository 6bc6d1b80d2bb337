#include "seriesnotifier.h"

#include "viewer/camerapool/camerapool.h"
#include "viewer/desktop/buscall.h"
#include "viewer/update/logging.h"

#include <QGuiApplication>
#include <QVariantMap>

namespace Viewer::AppCore {

using CameraPool::CCameraPool;
using Update::updateLog;

CSeriesNotifier::CSeriesNotifier(const CCameraPool &pool, std::chrono::milliseconds shortest,
                                 std::chrono::milliseconds pause, QObject *parent)
    : QObject(parent)
    , m_shortest(shortest)
{
    m_threads.setMaxThreadCount(1);
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &CSeriesNotifier::endSeries);
    connect(&pool, &CCameraPool::updateRunningChanged, this,
            &CSeriesNotifier::onUpdateRunningChanged);
    connect(&pool, &CCameraPool::updateEnded, this, &CSeriesNotifier::onUpdateEnded);
}

CSeriesNotifier::~CSeriesNotifier()
{
    m_threads.clear();
}

void CSeriesNotifier::onUpdateRunningChanged(bool isRunning)
{
    m_isUpdateRunning = isRunning;
    continueSeries();
}

void CSeriesNotifier::onUpdateEnded(const QString &, bool isUpdated)
{
    ++(isUpdated ? m_updatedCount : m_failedCount);
    // Its begin and its end may have come too close together to be told.
    continueSeries();
}

void CSeriesNotifier::continueSeries()
{
    if (!m_sinceBegin.isValid())
        m_sinceBegin.start();
    m_duration = std::chrono::milliseconds(m_sinceBegin.elapsed());
    if (m_isUpdateRunning)
        m_pause.stop();
    else
        m_pause.start();
}

void CSeriesNotifier::endSeries()
{
    const bool isTold
        = m_duration >= m_shortest && QGuiApplication::applicationState() != Qt::ApplicationActive;
    if (isTold)
        notify();
    m_sinceBegin.invalidate();
    m_updatedCount = 0;
    m_failedCount = 0;
    emit seriesEnded(isTold);
}

void CSeriesNotifier::notify()
{
    const QString name = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call = QDBusMessage::createMethodCall(
        name, QStringLiteral("/org/freedesktop/Notifications"), name, QStringLiteral("Notify"));
    const QString body = tr("%n update(s) succeeded.", nullptr, m_updatedCount) + QLatin1Char('\n')
        + tr("%n update(s) failed.", nullptr, m_failedCount);
    const uint replaced = 0;
    const int usualTime = -1;
    // Desktops take the body, but not the title, for markup.
    call << Desktop::getProductName() << replaced << QString()
         << tr("The firmware updates have ended") << body.toHtmlEscaped() << QStringList()
         << QVariantMap() << usualTime;
    m_threads.start([call] {
        const QDBusMessage answer = Desktop::callBus(Desktop::getSessionBus(), call);
        if (answer.type() != QDBusMessage::ReplyMessage)
            qCDebug(updateLog, "the desktop does not tell of the end of the updates: %s",
                    qUtf8Printable(answer.errorMessage()));
    });
}

} // namespace Viewer::AppCore
