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
    void followsTheSelectionById();

private:
    QString takeIds();

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

// What was announced since the last call: ids, and "null" for nothing selected.
QString CCameraSelectorViewTest::takeIds()
{
    QStringList ids;
    while (!m_spy->isEmpty()) {
        const auto info
            = m_spy->takeFirst().at(0).value<QSharedPointer<Plugin::CameraPool::IBaseInfo>>();
        ids.append(info ? info->getId() : "null");
    }
    return ids.join(' ');
}

void CCameraSelectorViewTest::announcesEachSelection()
{
    QCOMPARE(takeIds(), "");
    const QPoint camera = m_view->visualRect(m_view->getModel()->findId("b")).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, camera);
    QCOMPARE(takeIds(), "b");
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, camera);
    QCOMPARE(takeIds(), "");
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(takeIds(), "a");
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(takeIds(), "gev");
    m_enumeration->announce(m_enumeration->layers);
    QCOMPARE(takeIds(), "");
}

void CCameraSelectorViewTest::followsTheSelectionById()
{
    m_view->selectId("b");
    QCOMPARE(takeIds(), "b");
    const auto updated = makeLayer("gev", {{"new"}, {"a"}, {"b", "VX-1", {}, "9.0.0"}});
    m_enumeration->announce({updated});
    QVERIFY(m_view->selectionModel()->isSelected(m_view->getModel()->findId("b")));
    // The camera has changed: the announcement carries the new object.
    QCOMPARE(m_service->getSelection(), updated->getCameraInfoList().at(2));
    QCOMPARE(takeIds(), "b");
    m_enumeration->announce({makeLayer("u3v", {{"c"}})});
    QCOMPARE(takeIds(), "null");
    m_enumeration->announce({makeLayer("gev", {{"a"}, {"b"}})});
    QCOMPARE(takeIds(), "");
}

QTEST_MAIN(CCameraSelectorViewTest)

#include "tst_cameraselectorview.moc"
