#pragma once

#include <QPointer>
#include <QSharedPointer>
#include <QStateMachine>

class QWidget;

namespace Core::Plugin {
class IPluginInitializer;
} // namespace Core::Plugin

namespace Plugin::FirmwareUpdater::Internal::Model {
class CFirmwareUpdateTreeModel;
} // namespace Plugin::FirmwareUpdater::Internal::Model

namespace Plugin::FirmwareUpdater::Internal::View {
class CCameraSelectionDialog;
class CFirmwareUpdateDialog;
class CResultSummaryDialog;
class CUpdateSelectionDialog;
class CUpdateSummaryDialog;
} // namespace Plugin::FirmwareUpdater::Internal::View

namespace Plugin::FirmwareUpdater::Internal::Service {

/// What the wizard is put together from: its five pages, and the machine whose states are its
/// steps.
class CWizardAssembly
{
public:
    using CModelPtr = QSharedPointer<Model::CFirmwareUpdateTreeModel>;

    /// @p selectionModel has all enumerated cameras with their ticks, @p updateModel copies of the
    /// cameras chosen for update, with their progress and results.
    CWizardAssembly(const QPointer<Core::Plugin::IPluginInitializer> &initializer,
                    const CModelPtr &selectionModel, const CModelPtr &updateModel);

    /// Hides the pages, which belong to the host's main window and may live on.
    ~CWizardAssembly();

    /// Makes the pages that are not there, as children of @p parent.
    void createPages(QWidget *parent);

    /// Makes the steps for the pages and adds them to the machine.
    void createSteps();

    /// Null before createPages(), and once the host's main window is gone.
    [[nodiscard]] View::CCameraSelectionDialog *getCameraSelectionPage() const;
    [[nodiscard]] View::CUpdateSelectionDialog *getUpdateSelectionPage() const;

    void start();
    [[nodiscard]] bool isRunning() const;

private:
    Q_DISABLE_COPY(CWizardAssembly)

    const QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    const CModelPtr m_selectionModel;
    const CModelPtr m_updateModel;
    const QPointer<QStateMachine> m_stateMachine;

    // Not owned: children of the host's main window, which may die before or after this.
    QPointer<View::CCameraSelectionDialog> m_cameraSelection;
    QPointer<View::CUpdateSelectionDialog> m_updateSelection;
    QPointer<View::CUpdateSummaryDialog> m_updateSummary;
    QPointer<View::CFirmwareUpdateDialog> m_firmwareUpdate;
    QPointer<View::CResultSummaryDialog> m_resultSummary;
};

} // namespace Plugin::FirmwareUpdater::Internal::Service
