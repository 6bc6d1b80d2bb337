#include "cameraselectiondialog.h"

#include "model/firmwareupdatetreemodel.h"
#include "ui_cameraselectiondialog.h"
#include "view/delegate/treeviewcameraselectiondelegate.h"

#include <QSortFilterProxyModel>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

CCameraSelectionDialog::CCameraSelectionDialog(QWidget *parent)
    : CUpdateDialogBase(parent)
    , m_ui(std::make_unique<Ui::CameraSelectionDialogUi>())
{
    m_ui->setupUi(this);
    setIcon(m_ui->infoIconLabel, EIcon::Info);
    initializeFrame(m_ui->stepTitleLabel, m_ui->contentVerticalLayout, m_ui->buttonBox);
    m_nextButton = addNextButton(tr("Next"));
    initializeCameraTree(m_ui->cameraTreeView);
    connect(m_ui->refreshButton, &QPushButton::clicked, this,
            &CCameraSelectionDialog::refreshCamTreeClicked);
}

CCameraSelectionDialog::~CCameraSelectionDialog() = default;

void CCameraSelectionDialog::setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    auto *treeView = m_ui->cameraTreeView;
    if (!treeView->model()) {
        auto *proxy = new QSortFilterProxyModel(treeView);
        // Names do not change while a tree stands: a rebuild sorts its rows, a tick moves none.
        proxy->setDynamicSortFilter(false);
        proxy->setSourceModel(model.data());
        showColumns(proxy, {{CFirmwareUpdateEntity::DisplayName, 512}});
        treeView->setItemDelegateForColumn(CFirmwareUpdateEntity::DisplayName,
                                           new CTreeViewCameraSelectionDelegate(treeView));
    }
    treeView->expandAll();
    treeView->sortByColumn(CFirmwareUpdateEntity::DisplayName, Qt::AscendingOrder);
    CUpdateDialogBase::setModel(std::move(model));
}

void CCameraSelectionDialog::updateNextButton(bool enable)
{
    if (m_nextButton)
        enableDefaultButton(m_nextButton, enable);
}

void CCameraSelectionDialog::dialogButtonClicked(QAbstractButton *pButton)
{
    switch (getButton(pButton)) {
    case EButton::Next:
        emit nextClicked();
        break;
    case EButton::Close:
        emit closeClicked();
        break;
    default:
        break;
    }
}

} // namespace Plugin::FirmwareUpdater::Internal::View
