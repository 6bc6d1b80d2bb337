#include "support/fakehost.h"
#include "support/watcheddocument.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/cameraselector/deviceselectorservice.h"

#include <QAbstractItemModelTester>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QtTest>

using namespace TestSupport;
using namespace Viewer::CameraSelector;

class CCameraSelectorViewTest : public QObject
{
    Q_OBJECT

private slots:
    void announcesEachSelection();
    void namesOfCamerasAreText();
    void showsAddressesOnDemand();
};

void CCameraSelectorViewTest::announcesEachSelection()
{
    const auto enumeration = QSharedPointer<CFakeEnumerationService>::create();
    enumeration->layers
        = {makeLayer("gev", {{"a"}, {"b", "VX-2", {}, "2.0.0", 4}}), makeLayer("u3v", {{"c"}})};
    const auto service = QSharedPointer<CDeviceSelectorService>::create();
    CCameraSelectorView view(enumeration, service);
    const auto *const model = view.getModel();
    const QAbstractItemModelTester tester(view.getModel(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    view.resize(500, 400);
    view.show();
    QSignalSpy spy(service.data(), &CDeviceSelectorService::selectionChanged);
    // What was announced since the last call: ids, and "null" for nothing selected.
    const auto takeIds = [&spy] {
        QStringList ids;
        while (!spy.isEmpty()) {
            const auto info
                = spy.takeFirst().at(0).value<QSharedPointer<Plugin::CameraPool::IBaseInfo>>();
            ids.append(info ? info->getId() : "null");
        }
        return ids.join(' ');
    };

    const QPoint camera = view.visualRect(model->findId("b")).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, camera);
    QCOMPARE(takeIds(), "b");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, camera);
    QCOMPARE(takeIds(), "");
    QTest::keyClick(&view, Qt::Key_Up);
    QCOMPARE(takeIds(), "a");
    QTest::keyClick(&view, Qt::Key_Up);
    QCOMPARE(takeIds(), "gev");
    enumeration->announce(enumeration->layers);
    QCOMPARE(takeIds(), "");
    view.selectId("b");
    QCOMPARE(takeIds(), "b");

    const auto updated = makeLayer("gev", {{"new"}, {"a"}, {"b", "VX-1", {}, "9.0.0"}});
    enumeration->announce({updated});
    QVERIFY(view.selectionModel()->isSelected(model->findId("b")));
    // The camera has changed: the announcement carries the new object.
    QCOMPARE(service->getSelection(), updated->getCameraInfoList().at(2));
    QCOMPARE(takeIds(), "b");
    enumeration->announce({makeLayer("u3v", {{"c"}})});
    QCOMPARE(takeIds(), "null");
    enumeration->announce({makeLayer("gev", {{"a"}, {"b"}})});
    QCOMPARE(takeIds(), "");
}

void CCameraSelectorViewTest::namesOfCamerasAreText()
{
    CCameraSelectorModel model;
    model.setSnapshots([](const QString &) {
        Viewer::Camera::CCameraSnapshot snapshot;
        snapshot.ipAddress = snapshot.macAddress = "<img src=/dev/zero>";
        return snapshot;
    });
    model.setTransportLayers({makeLayer("gev", {{"a", "<img src=/dev/zero>"}})});
    const QModelIndex camera = model.findId("a");
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString toolTip = camera.siblingAtColumn(column).data(Qt::ToolTipRole).toString();
        QVERIFY(Qt::mightBeRichText(toolTip));
        QVERIFY2(CWatchedDocument(toolTip).isWordsAlone(), qPrintable(toolTip));
    }
    QVERIFY(camera.data(Qt::ToolTipRole).toString().contains("&lt;img"));
}

void CCameraSelectorViewTest::showsAddressesOnDemand()
{
    const auto enumeration = QSharedPointer<CFakeEnumerationService>::create();
    CCameraSelectorView view(enumeration, QSharedPointer<CDeviceSelectorService>::create());
    view.getModel()->setSnapshots([](const QString &id) {
        Viewer::Camera::CCameraSnapshot snapshot;
        if (id == "real") {
            snapshot.ipAddress = "10.0.0.7";
            snapshot.macAddress = "02:00:0A:00:00:07";
        }
        return snapshot;
    });
    enumeration->announce({makeLayer("gev", {{"real"}, {"simulated"}})});
    view.show();
    const auto toolTip
        = [&view](const char *id) { return view.getModel()->findId(id).data(Qt::ToolTipRole); };
    QVERIFY(toolTip("real").toString().contains("IP address: 10.0.0.7"));
    QVERIFY(toolTip("real").toString().contains("MAC address: 02:00:0A:00:00:07"));
    QVERIFY(!toolTip("simulated").toString().contains("address"));

    const QPoint title = view.header()->viewport()->rect().center();
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, title,
                                 view.header()->viewport()->mapToGlobal(title));
    QCoreApplication::sendEvent(view.header()->viewport(), &rightClick);
    auto *const menu = view.findChild<QMenu *>("cameraSelectorColumnMenu");
    QTRY_VERIFY(menu->isVisible());
    for (const char *text : {"10.0.0.7", "02:00:0A:00:00:07"}) {
        int column = 0;
        while (view.getModel()->findId("real").siblingAtColumn(column).data() != text)
            ++column;
        QVERIFY(view.isColumnHidden(column));
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().at(column - 1)).center());
        QVERIFY(!view.isColumnHidden(column));
        QVERIFY(view.columnWidth(column) > view.fontMetrics().horizontalAdvance(text));
        menu->popup({});
    }
    menu->close();
}

QTEST_MAIN(CCameraSelectorViewTest)

#include "tst_cameraselectorview.moc"
