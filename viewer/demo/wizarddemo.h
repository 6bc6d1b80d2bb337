#pragma once

#include "demoplan.h"
#include "watchdog.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QAbstractButton;
class QDialog;

namespace Viewer::AppCore {
class CViewer;
}

namespace Viewer::Demo {

/// Walks the firmware update wizard with mouse and keyboard events from Step 1 to Step 5, finding
/// its controls by their object names, and checks that each ticked camera has the new firmware.
class CWizardDemo : public QObject
{
    Q_OBJECT

public:
    /// @p viewer is borrowed and has been started.
    CWizardDemo(AppCore::CViewer &viewer, const QString &samplesDirectory,
                const QString &pictureDirectory);
    ~CWizardDemo() override;

    void start();

signals:
    /// Once, at the end: 0 when every ticked camera reports the new version, else 1.
    void finished(int exitCode);

private:
    enum class EPhase {
        WaitForCameras,
        WaitForStep1,
        WaitForStep2,
        WaitForStep3,
        WaitForStep4,
        WaitForStep5,
        WaitForVersions,
        WaitForImage,
        End,
    };

    void poll();
    void doWaitForCameras();
    void doStep1(QDialog *dialog);
    void doStep2(QDialog *dialog);
    void doStep3(QDialog *dialog);
    void doStep4(QDialog *dialog);
    void doStep5(QDialog *dialog);
    void doWaitForVersions();
    void doWaitForImage();

    bool clickButton(QDialog *dialog, QDialogButtonBox::ButtonRole role);
    void savePicture(QWidget *widget, const QString &name);
    void fail(const QString &reason);
    void end(int exitCode);
    [[nodiscard]] QDialog *findDialog(int step) const;
    [[nodiscard]] QString getPlace() const;
    [[nodiscard]] QString getMovement() const;
    [[nodiscard]] Plugin::CameraPool::CameraInfoPtr findCamera(const QString &id) const;

    AppCore::CViewer &m_viewer;
    const QString m_samplesDirectory;
    const QString m_pictureDirectory;
    CWatchdog m_watchdog;
    QTimer m_timer;
    QElapsedTimer m_phaseTime;
    CDemoPlan m_plan;
    EPhase m_phase = EPhase::WaitForCameras;
    int m_frameCount = 0;
    int m_exitCode = 1;
    bool m_enumerated = false;
    bool m_polling = false;
    bool m_pictureMissing = false;
    bool m_updatePictureTaken = false;
};

} // namespace Viewer::Demo
