#include "viewer/appcore/acquisitioncontroller.h"
#include "viewer/appcore/actioncontainer.h"
#include "viewer/appcore/imageview.h"

#include "camerapool/icameraenumerationservice.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

#include <memory>

using namespace Viewer::AppCore;
using Viewer::CameraPool::CCameraPool;
using Viewer::CameraPool::ECameraActivity;

class CAcquisitionControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingCanBeStartedWithoutACamera();
    void startsAndStops();
    void recordsIntoTheChosenFolder();
    void saysWhyACameraDoesNotStart();
    void anotherCameraTakesOverTheImage();

private:
    QAction *action(const char *name) const;
    QStringList enabledActions() const;

    std::unique_ptr<CCameraPool> m_pool;
    std::unique_ptr<CImageView> m_view;
    std::unique_ptr<CAcquisitionController> m_controller;
    QVector<Plugin::CameraPool::CameraInfoPtr> m_cameras;
};

void CAcquisitionControllerTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_acquisitioncontroller");
    QSettings().clear();
}

void CAcquisitionControllerTest::init()
{
    m_pool = std::make_unique<CCameraPool>(Viewer::CameraPool::CCameraPoolOptions());
    m_view = std::make_unique<CImageView>();
    m_controller = std::make_unique<CAcquisitionController>(*m_pool, *m_view, m_view.get());
    QSharedPointer<Plugin::CameraPool::ICameraEnumerationService> enumeration;
    const auto services = m_pool->getServices();
    for (const auto &service : services) {
        if (!enumeration)
            enumeration = service.dynamicCast<Plugin::CameraPool::ICameraEnumerationService>();
    }
    QSignalSpy spy(enumeration.data(),
                   &Plugin::CameraPool::ICameraEnumerationService::enumerationChanged);
    m_pool->start();
    QVERIFY(spy.wait());
    m_cameras = enumeration->getTransportLayerInfoVector().constFirst()->getCameraInfoList();
    QVERIFY(m_cameras.size() >= 2);
}

void CAcquisitionControllerTest::cleanup()
{
    m_controller.reset();
    m_view.reset();
    m_cameras.clear();
    m_pool.reset();
}

QAction *CAcquisitionControllerTest::action(const char *name) const
{
    return m_controller->findChild<QAction *>(name);
}

QStringList CAcquisitionControllerTest::enabledActions() const
{
    QStringList names;
    for (const char *name : {"start", "stop", "record", "stop_record"}) {
        if (action(name)->isEnabled())
            names.append(name);
    }
    return names;
}

void CAcquisitionControllerTest::nothingCanBeStartedWithoutACamera()
{
    QCOMPARE(enabledActions(), QStringList());
    m_controller->setCamera(m_cameras.at(0));
    QCOMPARE(enabledActions(), QStringList({"start", "record"}));
    m_controller->setCamera({});
    QCOMPARE(enabledActions(), QStringList());
}

void CAcquisitionControllerTest::startsAndStops()
{
    m_controller->setCamera(m_cameras.at(0));
    action("start")->trigger();
    QCOMPARE(m_pool->getActivity(m_cameras.at(0)->getId()), ECameraActivity::Acquiring);
    QTRY_COMPARE(enabledActions(), QStringList({"stop", "record"}));
    QTRY_VERIFY(m_view->hasImage());
    // Also a snapshot from a new enumeration leaves the image where it is.
    m_controller->setCamera(m_cameras.at(0));
    QVERIFY(m_view->hasImage());
    action("stop")->trigger();
    QTRY_COMPARE(enabledActions(), QStringList({"start", "record"}));
    QTRY_VERIFY(!m_view->hasImage());
}

void CAcquisitionControllerTest::recordsIntoTheChosenFolder()
{
    const QTemporaryDir folder;
    m_controller->setCamera(m_cameras.at(0));
    action("record")->trigger();
    auto *const dialog = m_view->findChild<QFileDialog *>("recordingFolderDialog");
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    emit dialog->fileSelected(folder.path());
    dialog->close();
    QTRY_COMPARE(enabledActions(), QStringList({"stop", "stop_record"}));
    QTRY_VERIFY(QDir(folder.path()).count() > 2);
    action("stop_record")->trigger();
    QTRY_COMPARE(enabledActions(), QStringList({"stop", "record"}));
}

void CAcquisitionControllerTest::saysWhyACameraDoesNotStart()
{
    const QSignalSpy spy(m_controller.get(), &CAcquisitionController::message);
    m_controller->setCamera(m_cameras.at(0));
    m_pool->setStartsLocked(true);
    action("start")->trigger();
    QCOMPARE(m_pool->getActivity(m_cameras.at(0)->getId()), ECameraActivity::Idle);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!spy.constFirst().at(0).toString().isEmpty());
}

void CAcquisitionControllerTest::anotherCameraTakesOverTheImage()
{
    m_controller->setCamera(m_cameras.at(0));
    action("start")->trigger();
    QTRY_VERIFY(m_view->hasImage());
    m_controller->setCamera(m_cameras.at(1));
    QVERIFY(!m_view->hasImage());
    QSignalSpy frames(m_pool.get(), &CCameraPool::frameReady);
    QVERIFY(frames.wait());
    QVERIFY2(!m_view->hasImage(), "the image of a camera that is not selected is shown");
}

QTEST_MAIN(CAcquisitionControllerTest)

#include "tst_acquisitioncontroller.moc"
