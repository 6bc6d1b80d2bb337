#include "firmwareupdatedialog.h"

#include "model/firmwareupdatetreemodel.h"
#include "ui_firmwareupdatedialog.h"
#include "view/delegate/treeviewlabeldelegate.h"
#include "view/delegate/treeviewstatusdelegate.h"

#include <QWindow>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CFirmwareUpdateDialog::CFirmwareUpdateDialog(QWidget *parent)
    : CUpdateDialogBase(parent)
    , m_ui(std::make_unique<Ui::FirmwareUpdateDialogUi>())
{
    m_ui->setupUi(this);
    setIcon(m_ui->infoIconLabel_1, EIcon::Warning);
    setIcon(m_ui->infoIconLabel_2, EIcon::Warning);
    initializeFrame(m_ui->stepTitleLabel, m_ui->contentVerticalLayout, m_ui->buttonBox);
    initializeCameraTree(m_ui->cameraTreeView);
    m_cancelButton = m_ui->buttonBox->button(QDialogButtonBox::Cancel);
}

CFirmwareUpdateDialog::~CFirmwareUpdateDialog() = default;

void CFirmwareUpdateDialog::setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    auto *treeView = m_ui->cameraTreeView;
    if (!treeView->model()) {
        showColumns(model.data(),
                    {
                        {CFirmwareUpdateEntity::DisplayName, 94},
                        {CFirmwareUpdateEntity::CurrentFirmware, 142},
                        {CFirmwareUpdateEntity::SelectedFirmware, 148},
                        {CFirmwareUpdateEntity::UpdateStatus, 126},
                    });
        auto *labelDelegate = new CTreeViewLabelDelegate(treeView);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::DisplayName, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::CurrentFirmware, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::SelectedFirmware, labelDelegate);
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::UpdateStatus,
                                           new CTreeViewStatusDelegate(treeView));
        watchExpansion();
    }
    // A series hands over its model with each camera, and expanding lays out all of its rows.
    if (!m_isExpanded) {
        treeView->expandAll();
        m_isExpanded = true;
    }
    CUpdateDialogBase::setModel(std::move(model));
}

void CFirmwareUpdateDialog::watchExpansion()
{
    m_isExpanded = false;
    const QAbstractItemModel *const model = m_ui->cameraTreeView->model();
    if (!model)
        return;
    const auto forget = [this] { m_isExpanded = false; };
    connect(m_ui->cameraTreeView, &QTreeView::collapsed, this, forget);
    connect(model, &QAbstractItemModel::modelReset, this, forget);
    connect(model, &QAbstractItemModel::rowsInserted, this, forget);
}

void CFirmwareUpdateDialog::updateOverallProgress(int current, int total)
{
    m_ui->progressIndicatorLabel->setText(QStringLiteral("%1/%2").arg(current).arg(total));
    m_ui->progressIndicatorLabel->setAccessibleName(
        tr("Camera %1 of %2").arg(QString::number(current), QString::number(total)));
}

void CFirmwareUpdateDialog::updateProgress(int value, int maximum)
{
    m_ui->progressBar->setMinimum(0);
    m_ui->progressBar->setMaximum(maximum);
    m_ui->progressBar->setValue(value);
}

void CFirmwareUpdateDialog::enableButtons(bool enable)
{
    enableDefaultButton(m_cancelButton, enable);

    // Where a window is made with these buttons, Qt adds the title bar that holds them; where it
    // has them replaced, it does not.
    Qt::WindowFlags flags = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
        | Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;
    flags.setFlag(Qt::WindowCloseButtonHint, enable);
    if (isVisible()) {
        // Hiding the page to show it with other buttons would be seen, and lose its place.
        overrideWindowFlags(flags);
        windowHandle()->setFlags(flags);
    } else {
        // A window that gets other buttons is made anew and would no longer be maximized.
        const Qt::WindowStates state = windowState();
        setWindowFlags(flags);
        setWindowState(state);
    }
    show();
}

void CFirmwareUpdateDialog::dialogButtonClicked(QAbstractButton *pButton)
{
    if (getButton(pButton) == EButton::Close)
        emit closeClicked();
}

} // namespace Plugin::FirmwareUpdater::Internal::View
