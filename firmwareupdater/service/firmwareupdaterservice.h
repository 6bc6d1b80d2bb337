#pragma once

#include "ifirmwareupdaterservice.h"
#include "temporarylog.h"
#include "wizardassembly.h"

#include "core/iplugininitializer.h"

#include <QHash>
#include <QPointer>

class QFileInfo;

namespace Plugin::CameraPool {
class ITransportLayerInfo;
} // namespace Plugin::CameraPool

namespace Plugin::FirmwareUpdater::Internal::Service {

/// The wizard's controller: starts it, answers its pages, and keeps what its steps share.
class CFirmwareUpdaterService : public IFirmwareUpdaterService
{
    Q_OBJECT

public:
    /// @p parent is the plug-in, which also shares the service through a `QSharedPointer`.
    CFirmwareUpdaterService(QPointer<Core::Plugin::IPluginInitializer> initializer,
                            QObject *parent);
    ~CFirmwareUpdaterService() override;

    bool postInitialize() override;
    void startFirmwareUpdater() override;
    QString getKorvaneSupportUrl() const override;
    QSharedPointer<Plugin::CameraPool::ICameraInfo> getSelectedCamera() const override;
    void setSelectedCamera(QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) override;
    bool isCompatibleCamera(QSharedPointer<Plugin::CameraPool::ICameraInfo> camera) override;
    QString getSelectedUpdatePath() const override;
    void openTemporaryLogFile() override;
    QString addTemporaryLogMessage(const Core::Logging::ELogLevel &level,
                                   const QString &message) override;
    QString getCurrentTemporaryLogFilePath() const override;
    QString getUpdateFailureMessage() const override;
    void setUpdateFailureMessage(const QString &message) override;
    void closeTemporaryLogFile() override;
    void setDialogPos(const QPoint &pos) override;
    QPoint getDialogPos() const override;
    void setDialogSize(const QSize &size) override;
    QSize getDialogSize() const override;
    void setDialogWindowState(const Qt::WindowStates &state) override;
    Qt::WindowStates getDialogWindowState() const override;
    void onEnumerationChanged() override;

private slots:
    void onRefreshCameraTreeClicked();
    void onBrowseClicked();
    void onPathChanged(QString filePath);

private:
    using TransportLayers = QVector<QSharedPointer<Plugin::CameraPool::ITransportLayerInfo>>;

    void initializeDialogs();
    void initializeStateMachine();
    void checkCompatibility(const QFileInfo &fileInfo);

    void selectUpdateFile(const QString &shownPath, const QFileInfo &fileInfo);
    [[nodiscard]] bool askToStopAllCameras() const;
    void loadCameraTree(const TransportLayers &layers);

    /// Untranslated words of the levels in the log.
    static const QHash<int, const char *> LOGLEVEL_TO_I18N_KEYS_MAP;

    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QSharedPointer<Plugin::CameraPool::ICameraInfo> m_selectedCamera;

    /// All enumerated cameras with their ticks.
    QSharedPointer<Model::CFirmwareUpdateTreeModel> m_cameraSelectionModel;

    CWizardAssembly m_wizard;
    QString m_selectedUpdatePath;
    CTemporaryLog m_temporaryLog;
    QString m_updateFailureMessage;
    QPoint m_dialogPos;
    QSize m_dialogSize;
    Qt::WindowStates m_dialogWindowState = Qt::WindowNoState;
};

} // namespace Plugin::FirmwareUpdater::Internal::Service
