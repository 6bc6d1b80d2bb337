#include "interruptionbar.h"

#include "viewer/text/visibletext.h"
#include "viewer/update/interruptedupdates.h"

#include <QAction>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStyle>

namespace Viewer::AppCore {

CInterruptionBar::CInterruptionBar(const QString &journalFolder, const SnapshotGetter &getSnapshot,
                                   QWidget *parent)
    : QFrame(parent)
    , m_journalFolder(journalFolder)
    , m_getSnapshot(getSnapshot)
{
    setObjectName(QStringLiteral("interruptionBar"));
    setFrameShape(QFrame::StyledPanel);
    auto *const icon = new QLabel(this);
    const int iconSize = style()->pixelMetric(QStyle::PM_LargeIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(iconSize));
    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("interruptionText"));
    // Words of cameras and files are no markup.
    m_label->setTextFormat(Qt::PlainText);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_label->setWordWrap(true);
    m_updateButton = new QPushButton(tr("Firmware Updater..."), this);
    m_updateButton->setObjectName(QStringLiteral("interruptionUpdate"));
    m_updateButton->hide();
    auto *const dismissButton = new QPushButton(tr("Dismiss"), this);
    dismissButton->setObjectName(QStringLiteral("interruptionDismiss"));
    auto *const layout = new QHBoxLayout(this);
    layout->addWidget(icon);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_updateButton);
    layout->addWidget(dismissButton);
    connect(m_updateButton, &QPushButton::clicked, this, [this] {
        if (m_updateAction)
            m_updateAction->trigger();
    });
    connect(dismissButton, &QPushButton::clicked, this, &CInterruptionBar::dismiss);
    hide();
}

CInterruptionBar::~CInterruptionBar() = default;

void CInterruptionBar::setUpdateAction(QAction *action)
{
    m_updateAction = action;
    if (action) {
        connect(action, &QAction::changed, this, &CInterruptionBar::onUpdateActionChanged);
        connect(action, &QObject::destroyed, m_updateButton, &QWidget::hide);
    }
    onUpdateActionChanged();
}

void CInterruptionBar::refresh()
{
    const QVector<Update::CUpdateRecord> updates = Update::takeInterruptedUpdates(m_journalFolder);
    if (!updates.isEmpty()) {
        m_told = updates.constFirst();
        QString text = describe(m_told);
        if (updates.size() > 1)
            text += QLatin1Char('\n') + tr("And %n more.", nullptr, updates.size() - 1);
        m_label->setText(text);
    }
    setVisible(!updates.isEmpty());
}

void CInterruptionBar::onUpdateActionChanged()
{
    m_updateButton->setVisible(m_updateAction && m_updateAction->isVisible());
    m_updateButton->setEnabled(m_updateAction && m_updateAction->isEnabled());
}

void CInterruptionBar::dismiss()
{
    Update::dismissInterruptedUpdate(m_journalFolder, m_told);
    refresh();
}

QString CInterruptionBar::describe(const Update::CUpdateRecord &record) const
{
    const QString name = Text::shorten(record.cameraName);
    const QString time = QLocale().toString(record.begin.toLocalTime(), QLocale::ShortFormat);
    QStringList sentences;
    if (record.step == 0)
        sentences.append(
            tr("The update of camera %1 that began at %2 was interrupted before its first step.")
                .arg(name, time));
    else
        sentences.append(tr("The update of camera %1 that began at %2 was interrupted in step %3 "
                            "of %4 (%5).")
                             .arg(name, time, QString::number(record.step),
                                  QString::number(record.stepCount),
                                  Text::shorten(record.stepName)));
    const QString file = Text::shorten(QDir::toNativeSeparators(record.filePath), 200);
    const Camera::CCameraSnapshot camera = m_getSnapshot(record.cameraId);
    if (camera.id.isEmpty())
        sentences.append(
            tr("It does not answer. Switch it off and on, then repeat the update with the file %1.")
                .arg(file));
    else
        sentences.append(
            tr("It reports firmware version %1 now. Repeat the update with the file %2.")
                .arg(Text::shorten(camera.firmwareVersion), file));
    return sentences.join(QLatin1Char('\n'));
}

} // namespace Viewer::AppCore
