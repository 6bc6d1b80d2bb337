#include "support/fakehost.h"
#include "support/watcheddocument.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorpanel.h"
#include "viewer/cameraselector/cameraselectorproxy.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/cameraselector/deviceselectorservice.h"

#include <QAbstractItemModelTester>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

using namespace TestSupport;
using namespace Viewer::CameraSelector;

static constexpr auto REPORTING = QAbstractItemModelTester::FailureReportingMode::QtTest;

class CCameraSelectorViewTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QSettings().clear(); }
    void ordersAndFilters();
    void countsOrderOnceForManyChanges();
    void announcesEachSelection();
    void namesOfCamerasAreText();
    void showsAddressesOnDemand();
};

void CCameraSelectorViewTest::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("NuvexTest");
    QCoreApplication::setApplicationName("tst_cameraselectorview");
}

/// The ids of the cameras in @p view, layer by layer.
static QString getIds(const CCameraSelectorView &view)
{
    QStringList layers;
    for (int row = 0; row < view.model()->rowCount(); ++row) {
        const QModelIndex layer = view.model()->index(row, 0);
        QStringList ids;
        for (int camera = 0; camera < view.model()->rowCount(layer); ++camera)
            ids.append(view.model()->index(camera, 0, layer).data().toString().mid(7));
        layers.append(ids.join(' '));
    }
    return layers.join(" | ");
}

void CCameraSelectorViewTest::ordersAndFilters()
{
    const auto enumeration = QSharedPointer<CFakeEnumerationService>::create();
    enumeration->layers = {makeLayer("gev", {{"c10"}, {"C9", "VX-2"}, {"c1", "VX-2"}, {"d"}}),
                           makeLayer("u3v", {{"c2"}, {"b"}})};
    const auto service = QSharedPointer<CDeviceSelectorService>::create();
    auto *const view = new CCameraSelectorView(enumeration, service);
    CCameraSelectorPanel panel(view);
    const auto *const count = panel.findChild<QLabel *>("cameraFilterCount");
    auto *const edit = panel.findChild<QLineEdit *>("cameraFilter");
    const QAbstractItemModelTester tester(view->model(), REPORTING);
    panel.show();
    const auto clickTitle = [view](int column) {
        QTest::mouseClick(view->header()->viewport(), Qt::LeftButton, {},
                          QPoint(view->header()->sectionViewportPosition(column) + 20, 5));
    };
    view->selectId("c1");
    QCOMPARE(getIds(*view), "c10 C9 c1 d | c2 b");
    clickTitle(CCameraSelectorModel::NameColumn);
    QCOMPARE(getIds(*view), "c1 C9 c10 d | b c2");
    QCOMPARE(view->currentIndex(), view->findId("c1"));
    clickTitle(CCameraSelectorModel::NameColumn);
    QCOMPARE(getIds(*view), "d c10 C9 c1 | c2 b");
    // Equals keep the order of the search, in both directions.
    clickTitle(CCameraSelectorModel::ModelColumn);
    QCOMPARE(getIds(*view), "c10 d C9 c1 | c2 b");
    clickTitle(CCameraSelectorModel::ModelColumn);
    QCOMPARE(getIds(*view), "C9 c1 c10 d | c2 b");
    enumeration->announce(enumeration->layers);
    QCOMPARE(getIds(*view), "C9 c1 c10 d | c2 b");
    QCOMPARE(getIds(CCameraSelectorView(enumeration, service)), "C9 c1 c10 d | c2 b");

    // What is selected stays so while it is shown, and when it is shown again.
    QTest::keyClicks(edit, "vx-2");
    QCOMPARE(getIds(*view), "C9 c1");
    QCOMPARE(count->text(), "2 of 6");
    QCOMPARE(service->getSelection()->getId(), "c1");
    QTest::keyClick(edit, 'x');
    QVERIFY(getIds(*view).isEmpty() && !service->getSelection());
    QTest::keyClick(edit, Qt::Key_Escape);
    QVERIFY(edit->text().isEmpty() && !count->isVisible());
    QCOMPARE(service->getSelection()->getId(), "c1");
    QVERIFY(view->isExpanded(view->findId("c1").parent()));
    // The image of a camera that is not shown was clicked.
    edit->setText("u3v");
    view->setFilter("b");
    QCOMPARE(edit->text(), "b");
    view->selectId("d");
    QVERIFY(edit->text().isEmpty());
    QCOMPARE(view->currentIndex(), view->findId("d"));
}

void CCameraSelectorViewTest::countsOrderOnceForManyChanges()
{
    CCameraSelectorModel model;
    QList<CCameraDescription> cameras;
    for (int i = 0; i < 100; ++i)
        cameras.append({QString::number(i)});
    model.setTransportLayers({makeLayer("gev", cameras.toVector())});
    CCameraSelectorProxy proxy(model);
    const QAbstractItemModelTester tester(&proxy, REPORTING);
    proxy.sort(CCameraSelectorModel::StateColumn);
    proxy.setFilter("ready");
    const QSignalSpy resets(&proxy, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&proxy, &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 50; ++i)
        model.setActivity(QString::number(i), Viewer::Camera::ECameraActivity::Updating);
    QCOMPARE(changes.size(), 50);
    QCOMPARE(proxy.getCameraCount(), 100);
    QTRY_COMPARE(proxy.getCameraCount(), 50);
    for (int i = 0; i < 50; ++i)
        model.setActivity(QString::number(i), Viewer::Camera::ECameraActivity::Idle);
    QTRY_COMPARE(proxy.getCameraCount(), 100);
    QCOMPARE(resets.size(), 2);
}

void CCameraSelectorViewTest::announcesEachSelection()
{
    const auto enumeration = QSharedPointer<CFakeEnumerationService>::create();
    enumeration->layers
        = {makeLayer("gev", {{"a"}, {"b", "VX-2", {}, "2.0.0", 4}}), makeLayer("u3v", {{"c"}})};
    const auto service = QSharedPointer<CDeviceSelectorService>::create();
    CCameraSelectorView view(enumeration, service);
    const QAbstractItemModelTester tester(view.getModel(), REPORTING);
    const QAbstractItemModelTester shownTester(view.model(), REPORTING);
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

    const QPoint camera = view.visualRect(view.findId("b")).center();
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
    QVERIFY(view.selectionModel()->isSelected(view.findId("b")));
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
