#include "wizardassembly.h"

#include "model/firmwareupdatetreemodel.h"
#include "state/cameraselectionstep.h"
#include "state/firmwareupdatedonestep.h"
#include "state/firmwareupdatingstep.h"
#include "state/resultsummarystep.h"
#include "state/updateselectionstep.h"
#include "state/updatesummarystep.h"
#include "view/cameraselectiondialog.h"
#include "view/firmwareupdatedialog.h"
#include "view/resultsummarydialog.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"

#include "core/iplugininitializer.h"

#include <QCoreApplication>
#include <QSignalTransition>

namespace Plugin::FirmwareUpdater::Internal::Service {

using View::CUpdateDialogBase;

/// Leads from @p from to @p to when @p dialog emits @p signal. The machine disconnects from a
/// dialog when it leaves the step, so the transition must not remember one that is gone.
template <typename TDialog, typename TSignal>
static void addTransition(QState *from, const QPointer<TDialog> &dialog, TSignal signal,
                          QAbstractState *to)
{
    QSignalTransition *const transition = from->addTransition(dialog.data(), signal, to);
    QObject::connect(dialog, &QObject::destroyed, transition,
                     [transition] { transition->setSenderObject(nullptr); });
}

template <typename TDialog>
static void createPage(QPointer<TDialog> &page, QWidget *parent,
                       const CWizardAssembly::CModelPtr &model)
{
    if (page)
        return;
    page = new TDialog(parent);
    page->setModel(model);
}

CWizardAssembly::CWizardAssembly(const QPointer<Core::Plugin::IPluginInitializer> &initializer,
                                 const CModelPtr &selectionModel, const CModelPtr &updateModel)
    : m_initializer(initializer)
    , m_selectionModel(selectionModel)
    , m_updateModel(updateModel)
    , m_stateMachine(new QStateMachine)
{
}

CWizardAssembly::~CWizardAssembly()
{
    // The state machine is left alive on purpose: its steps share the wizard's service, which the
    // plug-in owns as its child, and their release of it would delete it a second time. None of
    // them may be entered or left any more.
    if (m_stateMachine) {
        QCoreApplication::removePostedEvents(m_stateMachine);
        m_stateMachine->stop();
    }
    // Nobody is left to close a modal page.
    for (QDialog *const dialog :
         std::initializer_list<QDialog *>{m_cameraSelection, m_updateSelection, m_updateSummary,
                                          m_firmwareUpdate, m_resultSummary}) {
        if (dialog)
            dialog->hide();
    }
}

void CWizardAssembly::createPages(QWidget *parent)
{
    createPage(m_cameraSelection, parent, m_selectionModel);
    createPage(m_updateSelection, parent, m_selectionModel);
    createPage(m_updateSummary, parent, m_updateModel);
    createPage(m_firmwareUpdate, parent, m_updateModel);
    createPage(m_resultSummary, parent, m_updateModel);
}

void CWizardAssembly::createSteps()
{
    auto *const done = new State::CFirmwareUpdateDoneStep(m_initializer, nullptr);
    done->setCameraUpdateModel(m_updateModel);
    auto *const cameraSelection
        = new State::CCameraSelectionStep(m_initializer, m_cameraSelection, nullptr);
    cameraSelection->setCameraSelectionModel(m_selectionModel);
    auto *const updateSelection
        = new State::CUpdateSelectionStep(m_initializer, m_updateSelection, nullptr);
    updateSelection->setCameraUpdateModel(m_updateModel);
    auto *const updateSummary
        = new State::CUpdateSummaryStep(m_initializer, m_updateSummary, nullptr);
    updateSummary->setCameraSelectionModel(m_selectionModel);
    auto *const updating
        = new State::CFirmwareUpdatingStep(m_initializer, m_firmwareUpdate, nullptr);
    auto *const resultSummary
        = new State::CResultSummaryStep(m_initializer, m_resultSummary, nullptr);
    resultSummary->setCameraUpdateModel(m_updateModel);

    addTransition(cameraSelection, m_cameraSelection, &View::CCameraSelectionDialog::nextClicked,
                  updateSelection);
    addTransition(cameraSelection, m_cameraSelection, &CUpdateDialogBase::closeClicked, done);

    addTransition(updateSelection, m_updateSelection, &View::CUpdateSelectionDialog::backClicked,
                  cameraSelection);
    addTransition(updateSelection, m_updateSelection, &View::CUpdateSelectionDialog::nextClicked,
                  updateSummary);
    addTransition(updateSelection, m_updateSelection, &CUpdateDialogBase::closeClicked, done);

    addTransition(updateSummary, m_updateSummary, &View::CUpdateSummaryDialog::backClicked,
                  updateSelection);
    addTransition(updateSummary, m_updateSummary, &View::CUpdateSummaryDialog::nextClicked,
                  updating);
    addTransition(updateSummary, m_updateSummary, &CUpdateDialogBase::closeClicked, done);

    updating->addTransition(updating, &State::CFirmwareUpdatingStep::firmwareUpdateDone,
                            resultSummary);
    // Closing the page while cameras are updated is a wish that the step weighs, no way out of it.
    QObject::connect(m_firmwareUpdate, SIGNAL(closeClicked()), updating, SLOT(onUpdatesCanceled()));

    addTransition(resultSummary, m_resultSummary, &View::CResultSummaryDialog::nextClicked,
                  cameraSelection);
    addTransition(resultSummary, m_resultSummary, &CUpdateDialogBase::closeClicked, done);

    m_stateMachine->addState(done);
    m_stateMachine->addState(cameraSelection);
    m_stateMachine->addState(updateSelection);
    m_stateMachine->addState(updateSummary);
    m_stateMachine->addState(updating);
    m_stateMachine->addState(resultSummary);
    m_stateMachine->setInitialState(cameraSelection);
}

View::CCameraSelectionDialog *CWizardAssembly::getCameraSelectionPage() const
{
    return m_cameraSelection;
}

View::CUpdateSelectionDialog *CWizardAssembly::getUpdateSelectionPage() const
{
    return m_updateSelection;
}

void CWizardAssembly::start()
{
    m_stateMachine->start();
}

bool CWizardAssembly::isRunning() const
{
    return m_stateMachine && m_stateMachine->isRunning();
}

} // namespace Plugin::FirmwareUpdater::Internal::Service
