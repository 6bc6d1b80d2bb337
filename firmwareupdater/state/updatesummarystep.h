#pragma once

#include "camerapool/idevicefirmwareupdateservice.h"
#include "firmwareupdatestepbase.h"
#include "model/firmwareupdatetreemodel.h"

#include <QVector>

#include <memory>
#include <vector>

namespace Plugin::FirmwareUpdater::Internal::State {

/// Step 3: decides for each ticked camera which entry of the update file it gets, makes its update
/// job, and shows what is going to happen.
class CUpdateSummaryStep : public CFirmwareUpdateStepBase
{
    Q_OBJECT

public:
    CUpdateSummaryStep(QPointer<Core::Plugin::IPluginInitializer> pluginInitializer,
                       QDialog *dialog, QState *parent);
    ~CUpdateSummaryStep() override;

    /// Works on copies of the ticked cameras, which the summary's model then owns. When the file
    /// cannot be read, the summary keeps what it showed before.
    void onEntry(QEvent *event) override;

    /// The model of Step 1, whose ticked cameras are summarized; its nodes are only read.
    virtual void setCameraSelectionModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model);

    /// Brings the Next button in line with the ticks of the summary.
    void updateDialog();

public slots:
    void slotDataChanged(const QModelIndex &topLeft, const QModelIndex &topRight,
                         const QVector<int> &roles);

private:
    using UpdateInfos = QVector<QSharedPointer<Plugin::CameraPool::IFirmwareUpdateInfo>>;
    using Cameras = std::vector<std::unique_ptr<Entity::CFirmwareUpdateEntity>>;

    /// What the updates of this entry do, all cameras so far taken together.
    struct CDirections
    {
        bool anyDowngrade = false;
        bool anyReinstall = false;
    };

    [[nodiscard]] Cameras copySelectedCameras() const;
    bool readUpdateFile(UpdateInfos &updates) const;
    void prepareUpdate(Entity::CFirmwareUpdateEntity &camera, const UpdateInfos &updates,
                       CDirections &directions) const;
    [[nodiscard]] Plugin::CameraPool::DeviceFirmwareUpdatePtr
    createUpdate(const Plugin::CameraPool::CameraInfoPtr &cameraInfo,
                 const UpdateInfos &updates) const;
    void showCameras(Model::CFirmwareUpdateTreeModel *model, Cameras cameras);

    QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdateService> m_deviceUpdateService;
    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_cameraSelectionModel;
};

} // namespace Plugin::FirmwareUpdater::Internal::State
