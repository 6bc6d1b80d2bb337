#include "support/fakehost.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/cameraselector/deviceselectorservice.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include <memory>

using namespace TestSupport;
using namespace Viewer::CameraSelector;

class CCameraSelectorViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void announcesEachSelection();
    void keepsTheSelectionById();
    void announcesNullWhenTheCameraDisappears();

private:
    QString takeId();

    QSharedPointer<CFakeEnumerationService> m_enumeration;
    QSharedPointer<CDeviceSelectorService> m_service;
    std::unique_ptr<CCameraSelectorView> m_view;
    std::unique_ptr<QSignalSpy> m_spy;
};

void CCameraSelectorViewTest::init()
{
    m_view.reset();
    m_enumeration = QSharedPointer<CFakeEnumerationService>::create();
    m_enumeration->layers
        = {makeLayer("gev", {{"a"}, {"b", "VX-2", {}, "2.0.0", 4}}), makeLayer("u3v", {{"c"}})};
    m_service = QSharedPointer<CDeviceSelectorService>::create();
    m_view = std::make_unique<CCameraSelectorView>(m_enumeration, m_service);
    new QAbstractItemModelTester(m_view->getModel(),
                                 QAbstractItemModelTester::FailureReportingMode::QtTest,
                                 m_view->getModel());
    m_view->resize(500, 400);
    m_view->show();
    m_spy
        = std::make_unique<QSignalSpy>(m_service.data(), &CDeviceSelectorService::selectionChanged);
}

// The id in the only announcement since the last call; "null" for nothing selected, "none" for no
// announcement, "many" for more than one.
QString CCameraSelectorViewTest::takeId()
{
    if (m_spy->isEmpty())
        return "none";
    const auto info
        = m_spy->takeFirst().at(0).value<QSharedPointer<Plugin::CameraPool::IBaseInfo>>();
    if (!m_spy->isEmpty())
        return "many";
    return info ? info->getId() : QString("null");
}

void CCameraSelectorViewTest::announcesEachSelection()
{
    QCOMPARE(takeId(), "none");
    const QPoint camera = m_view->visualRect(m_view->getModel()->findId("b")).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, camera);
    QCOMPARE(takeId(), "b");
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, camera);
    QCOMPARE(takeId(), "none");
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(takeId(), "a");
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(takeId(), "gev");
    m_enumeration->announce(m_enumeration->layers);
    QCOMPARE(takeId(), "none");
}

void CCameraSelectorViewTest::keepsTheSelectionById()
{
    m_view->selectId("b");
    QCOMPARE(takeId(), "b");
    const auto updated = makeLayer("gev", {{"new"}, {"a"}, {"b", "VX-1", {}, "9.0.0"}});
    m_enumeration->announce({updated});
    QVERIFY(m_view->selectionModel()->isSelected(m_view->getModel()->findId("b")));
    // The camera has changed: the announcement carries the new object.
    QCOMPARE(m_service->getSelection(), updated->getCameraInfoList().at(2));
    QCOMPARE(takeId(), "b");
}

void CCameraSelectorViewTest::announcesNullWhenTheCameraDisappears()
{
    m_view->selectId("c");
    QCOMPARE(takeId(), "c");
    m_enumeration->announce({makeLayer("gev", {{"a"}, {"b"}})});
    QCOMPARE(takeId(), "null");
    m_enumeration->announce({makeLayer("u3v", {{"c"}})});
    QCOMPARE(takeId(), "none");
}

QTEST_MAIN(CCameraSelectorViewTest)

#include "tst_cameraselectorview.moc"
