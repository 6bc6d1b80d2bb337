#include "wizarddemo.h"

#include "inputdriver.h"

#include "viewer/appcore/mainwindow.h"
#include "viewer/appcore/menuservice.h"
#include "viewer/appcore/viewer.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/cameraselector/cameraselectorview.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QToolBar>
#include <QTreeView>

#include <cstdio>

namespace Viewer::Demo {

using Plugin::CameraPool::CameraInfoPtr;
using Plugin::CameraPool::ICameraEnumerationService;

static constexpr int POLL_TIME = 50; // milliseconds
static constexpr std::chrono::seconds HANG_TIME(60);
// How long the cameras' new versions, and then an image, may take to arrive; nothing else runs.
static constexpr qint64 ARRIVAL_TIME = 10000; // milliseconds
static constexpr int FRAMES_BEFORE_PICTURE = 3;

static void print(const QString &line)
{
    std::fprintf(stdout, "%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

static QString labelText(const QDialog *dialog, const QString &name)
{
    const auto *const label = dialog->findChild<QLabel *>(name);
    return label && label->isVisible() ? label->text() : QString();
}

// The rows of all groups of the model, below their transport layers.
static QModelIndexList findGroups(const QAbstractItemModel *model, const QString &modelName)
{
    QModelIndexList groups;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex layer = model->index(row, 0);
        for (int groupRow = 0; groupRow < model->rowCount(layer); ++groupRow) {
            const QModelIndex group = model->index(groupRow, 0, layer);
            if (group.data().toString() == modelName)
                groups.append(group);
        }
    }
    return groups;
}

CWizardDemo::CWizardDemo(AppCore::CViewer &viewer, const QString &samplesDirectory,
                         const QString &pictureDirectory)
    : m_viewer(viewer)
    , m_samplesDirectory(samplesDirectory)
    , m_pictureDirectory(pictureDirectory)
    , m_watchdog(HANG_TIME)
{
    m_timer.setInterval(POLL_TIME);
    connect(&m_timer, &QTimer::timeout, this, &CWizardDemo::poll);
    connect(m_viewer.getEnumerationService().data(), &ICameraEnumerationService::enumerationChanged,
            this, [this] { m_enumerated = true; });
    connect(&m_viewer.getCameraPool(), &CameraPool::CCameraPool::frameReady, this,
            [this] { ++m_frameCount; });
    connect(&m_viewer.getMainWindow(), &AppCore::CMainWindow::closed, this,
            [this] { fail(QStringLiteral("the viewer was closed")); });
}

CWizardDemo::~CWizardDemo() = default;

void CWizardDemo::start()
{
    m_phaseTime.start();
    m_timer.start();
}

void CWizardDemo::poll()
{
    // A modal question would run an event loop, and with it this timer, inside a click.
    if (m_polling)
        return;
    m_polling = true;
    const EPhase phase = m_phase;
    m_watchdog.report(getPlace().toStdString(), getMovement().toStdString());
    switch (m_phase) {
    case EPhase::WaitForCameras:
        doWaitForCameras();
        break;
    case EPhase::WaitForStep1:
        if (QDialog *const dialog = findDialog(1))
            doStep1(dialog);
        break;
    case EPhase::WaitForStep2:
        if (QDialog *const dialog = findDialog(2))
            doStep2(dialog);
        break;
    case EPhase::WaitForStep3:
        if (QDialog *const dialog = findDialog(3))
            doStep3(dialog);
        break;
    case EPhase::WaitForStep4:
    case EPhase::WaitForStep5:
        if (QDialog *const result = findDialog(5))
            doStep5(result);
        else if (QDialog *const progress = findDialog(4))
            doStep4(progress);
        break;
    case EPhase::WaitForVersions:
        doWaitForVersions();
        break;
    case EPhase::WaitForImage:
        doWaitForImage();
        break;
    case EPhase::End:
        break;
    }
    if (phase != m_phase)
        m_phaseTime.restart();
    m_polling = false;
}

void CWizardDemo::doWaitForCameras()
{
    QAction *const entry = m_viewer.getMenuService().findAction("FirmwareUpdater.Menu.Start");
    if (!entry) {
        fail(QStringLiteral("Tools has no entry for the wizard"));
        return;
    }
    if (!m_enumerated)
        return;
    if (!entry->isEnabled()) {
        fail(QStringLiteral("no cameras were found"));
        return;
    }
    QString error;
    m_plan = CDemoPlan::create(*m_viewer.getEnumerationService(), *m_viewer.getUpdateService(),
                               m_samplesDirectory, error);
    if (m_plan.cameras.isEmpty()) {
        fail(error);
        return;
    }
    if (!QDir().mkpath(m_pictureDirectory)) {
        fail(QStringLiteral("the folder \"%1\" cannot be made").arg(m_pictureDirectory));
        return;
    }
    m_phase = EPhase::WaitForStep1;
    entry->trigger();
}

void CWizardDemo::doStep1(QDialog *dialog)
{
    auto *const tree = dialog->findChild<QTreeView *>(QStringLiteral("cameraTreeView"));
    const QModelIndexList groups
        = tree ? findGroups(tree->model(), m_plan.modelName) : QModelIndexList();
    if (groups.isEmpty()) {
        fail(QStringLiteral("the tree has no row \"%1\"").arg(m_plan.modelName));
        return;
    }
    for (const QModelIndex &group : groups) {
        if (!CInputDriver::tick(tree, group)) {
            fail(QStringLiteral("the row \"%1\" cannot be ticked").arg(m_plan.modelName));
            return;
        }
    }
    savePicture(dialog, QStringLiteral("step1"));
    print(QStringLiteral("Step 1: ticked the model %1 with %2 cameras")
              .arg(m_plan.modelName)
              .arg(m_plan.cameras.size()));
    m_phase = EPhase::WaitForStep2;
    clickButton(dialog, QDialogButtonBox::AcceptRole);
}

void CWizardDemo::doStep2(QDialog *dialog)
{
    auto *const lineEdit = dialog->findChild<QLineEdit *>(QStringLiteral("updateFileLineEdit"));
    if (!lineEdit) {
        fail(QStringLiteral("there is no field for the update file"));
        return;
    }
    const QString path = QDir::toNativeSeparators(m_plan.updateFile);
    CInputDriver::type(lineEdit, path);
    savePicture(dialog, QStringLiteral("step2"));
    print(QStringLiteral("Step 2: typed %1").arg(path));
    m_phase = EPhase::WaitForStep3;
    // Next and Back: the wizard gives the two unusual roles, which only order them.
    clickButton(dialog, QDialogButtonBox::DestructiveRole);
}

void CWizardDemo::doStep3(QDialog *dialog)
{
    const auto *const tree = dialog->findChild<QTreeView *>(QStringLiteral("cameraTreeView"));
    const int rowCount = tree ? tree->model()->rowCount() : 0;
    savePicture(dialog, QStringLiteral("step3"));
    print(QStringLiteral("Step 3: %1 cameras get version %2")
              .arg(rowCount)
              .arg(m_plan.targetVersion));
    if (rowCount != m_plan.cameras.size()) {
        fail(QStringLiteral("%1 cameras were ticked, but %2 are listed")
                 .arg(m_plan.cameras.size())
                 .arg(rowCount));
        return;
    }
    m_phase = EPhase::WaitForStep4;
    clickButton(dialog, QDialogButtonBox::DestructiveRole);
}

void CWizardDemo::doStep4(QDialog *dialog)
{
    if (m_phase == EPhase::WaitForStep4) {
        print(QStringLiteral("Step 4: updating"));
        // Kept only if the series is too quick for a better moment.
        savePicture(dialog, QStringLiteral("step4"));
        m_phase = EPhase::WaitForStep5;
    }
    const auto *const bar = dialog->findChild<QProgressBar *>(QStringLiteral("progressBar"));
    const QString counter = labelText(dialog, QStringLiteral("progressIndicatorLabel"));
    const bool first = counter.startsWith(QLatin1String("1/")) && m_plan.cameras.size() > 1;
    if (m_updatePictureTaken || first || !bar || bar->maximum() <= m_plan.cameras.size())
        return;
    // Part-way through a camera after the first one: finished, running and waiting ones show.
    const double done = double(bar->value()) / bar->maximum();
    if (done > 0.3 && done < 0.9) {
        savePicture(dialog, QStringLiteral("step4"));
        m_updatePictureTaken = true;
    }
}

void CWizardDemo::doStep5(QDialog *dialog)
{
    savePicture(dialog, QStringLiteral("step5"));
    QStringList texts;
    for (const char *name : {"successfulUpdatesLabel", "failedUpdatesLabel", "skippedUpdatesLabel",
                             "errorTextLabel"}) {
        const QString text = labelText(dialog, QLatin1String(name));
        if (!text.isEmpty())
            texts.append(QString(text).replace(QLatin1String("<br>"), QLatin1String(" ")));
    }
    print(QStringLiteral("Step 5: %1").arg(texts.join(QLatin1String(", "))));

    const QString links = labelText(dialog, QStringLiteral("infoTextLabel_2"))
        + labelText(dialog, QStringLiteral("infoTextLabel_3"));
    static const QRegularExpression logLink(QStringLiteral("href=\"([^\"]*\\.log)\""));
    print(QStringLiteral("Log: %1").arg(logLink.match(links).captured(1)));
    m_phase = EPhase::WaitForVersions;
    clickButton(dialog, QDialogButtonBox::RejectRole);
}

void CWizardDemo::doWaitForVersions()
{
    int updatedCount = 0;
    for (const CameraInfoPtr &before : qAsConst(m_plan.cameras)) {
        const CameraInfoPtr now = findCamera(before->getId());
        updatedCount += now && now->getFirmwareVersion() == m_plan.targetVersion ? 1 : 0;
    }
    const bool complete = updatedCount == m_plan.cameras.size();
    if (!complete && m_phaseTime.elapsed() < ARRIVAL_TIME)
        return;
    for (const CameraInfoPtr &before : qAsConst(m_plan.cameras)) {
        const CameraInfoPtr now = findCamera(before->getId());
        const QString oldVersion = before->getFirmwareVersion();
        const QString newVersion = now ? now->getFirmwareVersion() : QStringLiteral("gone");
        print(QStringLiteral("%1: %2 -> %3%4")
                  .arg(before->getDisplayName(), oldVersion, newVersion,
                       oldVersion == newVersion && newVersion == m_plan.targetVersion
                           ? QStringLiteral(" (reinstalled)")
                           : QString()));
    }
    print(QStringLiteral("%1 of %2 cameras have version %3")
              .arg(updatedCount)
              .arg(m_plan.cameras.size())
              .arg(m_plan.targetVersion));
    m_exitCode = complete ? 0 : 1;
    m_phase = EPhase::WaitForImage;
    m_frameCount = 0;
    m_viewer.getCameraSelector().selectId(m_plan.cameras.constFirst()->getId());
    QToolBar *const toolBar = m_viewer.getMainWindow().getToolBar();
    const QList<QAction *> actions = toolBar->actions();
    for (QAction *const action : actions) {
        if (action->objectName() == QLatin1String("start"))
            CInputDriver::click(qobject_cast<QAbstractButton *>(toolBar->widgetForAction(action)));
    }
}

void CWizardDemo::doWaitForImage()
{
    if (m_frameCount < FRAMES_BEFORE_PICTURE && m_phaseTime.elapsed() < ARRIVAL_TIME)
        return;
    savePicture(&m_viewer.getMainWindow(), QStringLiteral("viewer"));
    end(m_pictureMissing ? 1 : m_exitCode);
}

bool CWizardDemo::clickButton(QDialog *dialog, QDialogButtonBox::ButtonRole role)
{
    const auto *const box = dialog->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    const QList<QAbstractButton *> buttons = box ? box->buttons() : QList<QAbstractButton *>();
    for (QAbstractButton *const button : buttons) {
        if (box->buttonRole(button) == role && CInputDriver::click(button))
            return true;
    }
    fail(QStringLiteral("the button that leads on is missing or disabled"));
    return false;
}

void CWizardDemo::savePicture(QWidget *widget, const QString &name)
{
    const QString path = QDir(m_pictureDirectory).filePath(QStringLiteral("%1.png").arg(name));
    if (widget->grab().save(path))
        return;
    // Not at once: an update may be running, which must not be cut off.
    m_pictureMissing = true;
    std::fprintf(stderr, "The picture \"%s\" cannot be written.\n", qUtf8Printable(path));
}

void CWizardDemo::fail(const QString &reason)
{
    std::fprintf(stderr, "The demonstration ends in %s: %s.\n", qUtf8Printable(getPlace()),
                 qUtf8Printable(reason));
    end(1);
}

void CWizardDemo::end(int exitCode)
{
    if (m_phase == EPhase::End)
        return;
    m_phase = EPhase::End;
    m_timer.stop();
    emit finished(exitCode);
}

QDialog *CWizardDemo::findDialog(int step) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        auto *const dialog = qobject_cast<QDialog *>(window);
        if (!dialog || !dialog->isVisible())
            continue;
        // "Step 1: ...", in every language with the number as the only digit.
        const QString title = labelText(dialog, QStringLiteral("stepTitleLabel"));
        if (title.contains(QString::number(step)))
            return dialog;
    }
    return nullptr;
}

QString CWizardDemo::getPlace() const
{
    switch (m_phase) {
    case EPhase::WaitForCameras:
        return QStringLiteral("the search for cameras");
    case EPhase::WaitForStep1:
        return QStringLiteral("Step 1");
    case EPhase::WaitForStep2:
        return QStringLiteral("Step 2");
    case EPhase::WaitForStep3:
        return QStringLiteral("Step 3");
    case EPhase::WaitForStep4:
    case EPhase::WaitForStep5:
        return findDialog(5) ? QStringLiteral("Step 5") : QStringLiteral("Step 4");
    default:
        return QStringLiteral("the check of the versions");
    }
}

QString CWizardDemo::getMovement() const
{
    const QDialog *const dialog = findDialog(4);
    const auto *const bar
        = dialog ? dialog->findChild<QProgressBar *>(QStringLiteral("progressBar")) : nullptr;
    if (!bar)
        return {};
    return QStringLiteral("%1 %2 %3")
        .arg(labelText(dialog, QStringLiteral("progressIndicatorLabel")))
        .arg(bar->value())
        .arg(bar->maximum());
}

CameraInfoPtr CWizardDemo::findCamera(const QString &id) const
{
    const auto layers = m_viewer.getEnumerationService()->getTransportLayerInfoVector();
    for (const auto &layer : layers) {
        for (const CameraInfoPtr &camera : layer->getCameraInfoList()) {
            if (camera->getId() == id)
                return camera;
        }
    }
    return {};
}

} // namespace Viewer::Demo
