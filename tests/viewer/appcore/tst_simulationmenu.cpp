#include "viewer/appcore/simulationmenu.h"
#include "viewer/camerapool/camerapool.h"
#include "viewer/camerapool/simulation/simulation.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

using namespace Viewer::AppCore;
using Viewer::CameraPool::CCameraPool;

class CSimulationMenuTest : public QObject
{
    Q_OBJECT

private slots:
    void plugsAndUnplugs();
    void makesBusy();
};

static QList<QAction *> openFirstCamera(QMenu &menu)
{
    emit menu.aboutToShow();
    return menu.actions().constFirst()->menu()->actions();
}

void CSimulationMenuTest::plugsAndUnplugs()
{
    CCameraPool pool({});
    auto &simulation = pool.getSimulation();
    QMenu menu;
    const CSimulationMenu simulationMenu(simulation, &menu);
    const QString id = simulation.getCameras().constFirst().id;
    QCOMPARE(menu.actions().size(), simulation.getCameras().size());

    QVERIFY(openFirstCamera(menu).at(0)->isChecked());
    openFirstCamera(menu).at(0)->trigger();
    QVERIFY(!simulation.isPlugged(id));
    QVERIFY(!openFirstCamera(menu).at(0)->isChecked());
    QVERIFY2(!openFirstCamera(menu).at(1)->isEnabled(), "an unplugged camera cannot be busy");
    openFirstCamera(menu).at(0)->trigger();
    QVERIFY(simulation.isPlugged(id));
}

void CSimulationMenuTest::makesBusy()
{
    CCameraPool pool({});
    auto &simulation = pool.getSimulation();
    QMenu menu;
    const CSimulationMenu simulationMenu(simulation, &menu);
    const QString id = simulation.getCameras().constFirst().id;
    openFirstCamera(menu).at(1)->trigger();
    QVERIFY(simulation.isBusy(id));
    QVERIFY(openFirstCamera(menu).at(1)->isChecked());
    openFirstCamera(menu).at(1)->trigger();
    QVERIFY(!simulation.isBusy(id));
}

QTEST_MAIN(CSimulationMenuTest)

#include "tst_simulationmenu.moc"
