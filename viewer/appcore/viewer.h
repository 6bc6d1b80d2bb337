#pragma once

#include "commandline.h"

#include "viewer/signature/signaturepolicy.h"

#include <QObject>
#include <QSharedPointer>
#include <QTimer>

#include <memory>
#include <vector>

class QAction;

namespace Viewer::CameraPool {
class CCameraPool;
}

namespace Viewer::CameraSelector {
class CCameraSelectorView;
class CDeviceSelectorService;
} // namespace Viewer::CameraSelector

namespace Viewer::PluginSystem {
class CPluginInitializer;
class CPluginManager;
} // namespace Viewer::PluginSystem

namespace Plugin::CameraPool {
class ICameraEnumerationService;
class IDeviceFirmwareUpdateService;
} // namespace Plugin::CameraPool

namespace Viewer::AppCore {

class CAcquisitionController;
class CImageActions;
class CInterruptionBar;
class CLinkOpener;
class CLogFolder;
class CMainWindow;
class CMenuService;
class CModalDialogWatcher;
class CSeriesNotifier;
class CSwitchMenu;
class CUpdateFileOpener;

/// The whole viewer: makes its parts, connects them, starts the plug-ins, and ends all of it in the
/// reverse order.
class CViewer : public QObject
{
    Q_OBJECT

public:
    /// Makes the parts and publishes their services. @p language is the language of this start.
    /// @p logs is borrowed and outlives this object; without it nobody keeps logs. Throws
    /// `Core::Exception::BaseException` when the description of the cameras is faulty.
    CViewer(CCommandLineOptions options, const QString &language, const CLogFolder *logs = nullptr);

    /// Un-initializes the plug-ins, then takes down window and cameras.
    ~CViewer() override;

    /// Starts the plug-ins, shows the window and begins the first enumeration. False, with one
    /// line per plug-in in @p failures, when a required plug-in is not available; then nothing is
    /// shown. Failures of others are in @p failures as well.
    bool start(QStringList &failures);

    [[nodiscard]] CMainWindow &getMainWindow() const;
    [[nodiscard]] CMenuService &getMenuService() const;
    [[nodiscard]] CameraPool::CCameraPool &getCameraPool() const;
    [[nodiscard]] CameraSelector::CCameraSelectorView &getCameraSelector() const;
    [[nodiscard]] QSharedPointer<Plugin::CameraPool::ICameraEnumerationService>
    getEnumerationService() const;
    [[nodiscard]] QSharedPointer<Plugin::CameraPool::IDeviceFirmwareUpdateService>
    getUpdateService() const;

public slots:
    /// Closes the window as soon as nothing speaks against it: at once, or when the update and the
    /// dialog in its way have ended.
    void requestClose();

signals:
    /// requestClose() has to wait, or waits for something else now. @p sentence says what for; the
    /// status bar shows it, too.
    void closeDeferred(const QString &sentence);

private:
    void createWindow();
    void fillMenus();
    void addSwitches();
    void registerServices();
    void addBuiltIns();
    [[nodiscard]] QString getReasonToStayOpen() const;
    void closeIfRequested();
    void onEnumerationChanged();
    void setSignaturePolicy();
    void showSignature(const QString &filePath, const Signature::CSignatureVerdict &verdict);
    void showTrustedMakers();
    void showLogs();
    void showUpdateHistory();
    void showPlugins();
    void showAbout();

    CCommandLineOptions m_options; ///< its kinds are the pool's
    const QString m_language;
    const CLogFolder *const m_logs;
    Signature::CSignaturePolicy m_signaturePolicy;
    // In the order of construction; destroyed from the last to the first.
    std::unique_ptr<CModalDialogWatcher> m_dialogWatcher;
    std::unique_ptr<CLinkOpener> m_linkOpener;
    std::unique_ptr<CameraPool::CCameraPool> m_pool;
    std::unique_ptr<CSeriesNotifier> m_seriesNotifier;
    QSharedPointer<CMenuService> m_menuService;
    QSharedPointer<CameraSelector::CDeviceSelectorService> m_selectorService;
    std::unique_ptr<CMainWindow> m_window;
    std::unique_ptr<CAcquisitionController> m_acquisition;
    std::unique_ptr<CImageActions> m_imageActions;
    std::unique_ptr<CUpdateFileOpener> m_updateFiles;
    std::vector<std::unique_ptr<CSwitchMenu>> m_switchMenus;
    std::unique_ptr<PluginSystem::CPluginInitializer> m_initializer;
    std::unique_ptr<PluginSystem::CPluginManager> m_pluginManager;
    CameraSelector::CCameraSelectorView *m_selectorView = nullptr; ///< the window's child
    QAction *m_filterAction = nullptr; ///< the same
    CInterruptionBar *m_interruptionBar = nullptr; ///< the same
    bool m_closeRequested = false;
    QString m_toldReason; ///< why it was not closed, as last told
    QTimer m_nextReasonTimer;
    QString m_refusal; ///< why an update file does not fit, to be shown by the timer
    QTimer m_refusalTimer;
};

} // namespace Viewer::AppCore
