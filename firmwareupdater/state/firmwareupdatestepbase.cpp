#include "firmwareupdatestepbase.h"

namespace Plugin::FirmwareUpdater::Internal::State {

CFirmwareUpdateStepBase::CFirmwareUpdateStepBase(
    QPointer<Core::Plugin::IPluginInitializer> pluginInitializer, QDialog *dialog, QState *parent)
    : QState(parent)
    , m_dialog(dialog)
    , m_updaterService(pluginInitializer->getService<IFirmwareUpdaterService>())
{
}

CFirmwareUpdateStepBase::~CFirmwareUpdateStepBase() = default;

void CFirmwareUpdateStepBase::onEntry(QEvent *event)
{
    Q_UNUSED(event)

    if (!m_dialog)
        return;

    placeDialog();
    m_dialog->show();
}

void CFirmwareUpdateStepBase::onExit(QEvent *event)
{
    Q_UNUSED(event)

    if (!m_dialog)
        return;

    m_updaterService->setDialogSize(m_dialog->size());
    m_updaterService->setDialogPos(m_dialog->pos());
    m_updaterService->setDialogWindowState(m_dialog->windowState());
    m_dialog->hide();
}

QPointer<QDialog> CFirmwareUpdateStepBase::getDialog() const
{
    return m_dialog;
}

void CFirmwareUpdateStepBase::placeDialog() const
{
    const QSize size = m_updaterService->getDialogSize();
    // Nothing is remembered before the first page was left.
    if (!m_dialog || size.width() < 0 || size.height() < 0)
        return;

    const Qt::WindowStates state = m_updaterService->getDialogWindowState();
    // A wizard that was full screen comes back maximized: full screen has no title bar to leave by.
    if (state & (Qt::WindowFullScreen | Qt::WindowMaximized)) {
        m_dialog->setWindowState(Qt::WindowMaximized);
        return;
    }

    m_dialog->setWindowState(state);
    m_dialog->move(m_updaterService->getDialogPos());
    m_dialog->resize(size);
}

QSharedPointer<IFirmwareUpdaterService> CFirmwareUpdateStepBase::getUpdaterService() const
{
    return m_updaterService;
}

} // namespace Plugin::FirmwareUpdater::Internal::State
