#include "support/fakehost.h"
#include "support/watcheddocument.h"
#include "viewer/cameraselector/cameraselectormodel.h"
#include "viewer/cameraselector/cameraselectorview.h"
#include "viewer/cameraselector/deviceselectorservice.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace TestSupport;
using namespace Viewer::CameraSelector;

class CCameraSelectorViewTest : public QObject
{
    Q_OBJECT

private slots:
    void announcesEachSelection();
    void namesOfCamerasAreText();
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
    model.setTransportLayers({makeLayer("gev", {{"a", "<img src=/dev/zero>"}})});
    const QModelIndex camera = model.findId("a");
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString toolTip = camera.siblingAtColumn(column).data(Qt::ToolTipRole).toString();
        QVERIFY(Qt::mightBeRichText(toolTip));
        QVERIFY2(CWatchedDocument(toolTip).isWordsAlone(), qPrintable(toolTip));
    }
    QVERIFY(camera.data(Qt::ToolTipRole).toString().contains("&lt;img"));
}

QTEST_MAIN(CCameraSelectorViewTest)

#include "tst_cameraselectorview.moc"
