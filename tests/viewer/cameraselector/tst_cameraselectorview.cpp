#include "support/fakehost.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/cameraselector/deviceselectorservice.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QtTest>

#include <memory>

using namespace TestSupport;
using namespace Viewer::CameraSelector;

Q_DECLARE_METATYPE(QContextMenuEvent::Reason)

class CCameraSelectorViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void announcesEachSelection();
    void keepsTheSelectionById();
    void announcesNothingWhenNothingChanged();
    void announcesNullWhenTheCameraDisappears();
    void returningCameraIsNotSelectedByItself();
    void nothingCanBeSelected();
    void opensTheContextMenu_data();
    void opensTheContextMenu();
    void emptyContextMenuStaysClosed();

private:
    QString takeId();
    void sendContextMenu(QContextMenuEvent::Reason reason);

    QSharedPointer<CFakeEnumerationService> m_enumeration;
    QSharedPointer<CDeviceSelectorService> m_service;
    std::unique_ptr<CCameraSelectorView> m_view;
    std::unique_ptr<QSignalSpy> m_spy;
};

void CCameraSelectorViewTest::init()
{
    m_view.reset();
    m_enumeration = QSharedPointer<CFakeEnumerationService>::create();
    m_enumeration->layers = {makeLayer("gev", {{"a"}, {"b"}}), makeLayer("u3v", {{"c"}})};
    m_service = QSharedPointer<CDeviceSelectorService>::create();
    m_view = std::make_unique<CCameraSelectorView>(m_enumeration, m_service);
    m_view->resize(500, 400);
    m_view->show();
    m_spy
        = std::make_unique<QSignalSpy>(m_service.data(), &CDeviceSelectorService::selectionChanged);
    QVERIFY(m_spy->isValid());
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
    const QModelIndex camera = m_view->getModel()->findId("b");
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, m_view->visualRect(camera).center());
    QCOMPARE(takeId(), "b");
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, m_view->visualRect(camera).center());
    QCOMPARE(takeId(), "none");
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(takeId(), "a");
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(takeId(), "gev");
}

void CCameraSelectorViewTest::keepsTheSelectionById()
{
    m_view->selectId("b");
    QCOMPARE(takeId(), "b");
    const auto updated = makeLayer("gev", {{"new"}, {"a"}, {"b", "VX-1", {}, "9.0.0"}});
    m_enumeration->announce({updated});
    QCOMPARE(m_view->getModel()->getInfo(m_view->currentIndex())->getId(), "b");
    QVERIFY(m_view->selectionModel()->isSelected(m_view->currentIndex()));
    // The camera has changed: the announcement carries the new object.
    QCOMPARE(m_service->getSelection(), updated->getCameraInfoList().at(2));
    QCOMPARE(takeId(), "b");
}

void CCameraSelectorViewTest::announcesNothingWhenNothingChanged()
{
    m_view->selectId("c");
    QCOMPARE(takeId(), "c");
    m_enumeration->announce(m_enumeration->layers);
    QCOMPARE(takeId(), "none");
}

void CCameraSelectorViewTest::announcesNullWhenTheCameraDisappears()
{
    m_view->selectId("c");
    QCOMPARE(takeId(), "c");
    m_enumeration->announce({makeLayer("gev", {{"a"}, {"b"}})});
    QCOMPARE(takeId(), "null");
    QVERIFY(!m_view->currentIndex().isValid());
}

void CCameraSelectorViewTest::returningCameraIsNotSelectedByItself()
{
    m_view->selectId("c");
    m_enumeration->announce({});
    m_spy->clear();
    m_enumeration->announce({makeLayer("u3v", {{"c"}})});
    QCOMPARE(takeId(), "none");
}

void CCameraSelectorViewTest::nothingCanBeSelected()
{
    m_view->selectId("a");
    m_spy->clear();
    QTest::keyClick(m_view.get(), Qt::Key_Escape);
    QCOMPARE(takeId(), "null");
    m_view->selectId("a");
    m_spy->clear();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
                      QPoint(20, m_view->viewport()->height() - 5));
    QCOMPARE(takeId(), "null");
    m_view->selectId("a");
    m_spy->clear();
    m_view->selectId("no such camera");
    QCOMPARE(takeId(), "null");
}

void CCameraSelectorViewTest::sendContextMenu(QContextMenuEvent::Reason reason)
{
    QContextMenuEvent event(reason, {30, 30}, m_view->viewport()->mapToGlobal({30, 30}));
    QCoreApplication::sendEvent(m_view->viewport(), &event);
}

void CCameraSelectorViewTest::opensTheContextMenu_data()
{
    QTest::addColumn<QContextMenuEvent::Reason>("reason");
    QTest::newRow("mouse") << QContextMenuEvent::Mouse;
    QTest::newRow("menu key") << QContextMenuEvent::Keyboard;
}

void CCameraSelectorViewTest::opensTheContextMenu()
{
    QFETCH(const QContextMenuEvent::Reason, reason);
    QMenu menu;
    menu.addAction("Entry");
    m_view->setContextMenu(&menu);
    m_view->selectId("c");
    sendContextMenu(reason);
    QVERIFY(menu.isVisible());
    const QPoint row
        = m_view->viewport()->mapToGlobal(m_view->visualRect(m_view->currentIndex()).center());
    QCOMPARE(menu.pos(),
             reason == QContextMenuEvent::Mouse ? m_view->viewport()->mapToGlobal(QPoint(30, 30))
                                                : row);
}

void CCameraSelectorViewTest::emptyContextMenuStaysClosed()
{
    QMenu menu;
    menu.addAction("Hidden")->setVisible(false);
    m_view->setContextMenu(&menu);
    sendContextMenu(QContextMenuEvent::Mouse);
    QVERIFY(!menu.isVisible());
    m_view->setContextMenu(nullptr);
    sendContextMenu(QContextMenuEvent::Mouse);
}

QTEST_MAIN(CCameraSelectorViewTest)

#include "tst_cameraselectorview.moc"
