#pragma once

#include "ifirmwareupdaterservice.h"

#include "core/iplugininitializer.h"

#include <QDialog>
#include <QPointer>
#include <QSharedPointer>
#include <QState>

namespace Plugin::FirmwareUpdater::Internal::State {

/// A step of the wizard: a state that shows its dialog while it is active. All dialogs take over
/// one place, size and window state, so that the wizard looks like one window that turns pages.
class CFirmwareUpdateStepBase : public QState
{
    Q_OBJECT

public:
    /// @p dialog stays the caller's and may die before the step. @p pluginInitializer must be alive
    /// and know the `IFirmwareUpdaterService`.
    CFirmwareUpdateStepBase(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                            QDialog *dialog, QState *parent);
    ~CFirmwareUpdateStepBase() override;

    /// Shows the dialog where the wizard was left.
    void onEntry(QEvent *event) override;

    /// Remembers where the wizard is and hides the dialog.
    void onExit(QEvent *event) override;

    /// The step's dialog, or null once it has been destroyed.
    [[nodiscard]] virtual QPointer<QDialog> getDialog() const;

protected:
    /// The step's dialog as a @p T; null when it is gone or of another class.
    template <typename T>
    [[nodiscard]] T *getDialogAs() const
    {
        return qobject_cast<T *>(getDialog().data());
    }

    /// Gives the dialog the place, size and window state that the wizard was left with, if any.
    void placeDialog() const;

    [[nodiscard]] QSharedPointer<IFirmwareUpdaterService> getUpdaterService() const;

private:
    QPointer<QDialog> m_dialog;
    QSharedPointer<IFirmwareUpdaterService> m_updaterService;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
