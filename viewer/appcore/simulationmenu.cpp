#include "simulationmenu.h"

#include "viewer/camera/simulation/simulation.h"

#include <QMenu>

namespace Viewer::AppCore {

using Camera::Simulation::CSimulatedCameraState;
using Camera::Simulation::CSimulation;

CSimulationMenu::CSimulationMenu(CSimulation &simulation, QMenu *menu)
    : m_simulation(simulation)
    , m_menu(menu)
{
    connect(m_menu, &QMenu::aboutToShow, this, &CSimulationMenu::fill);
    // Filled already now: a menu without entries would not open by keyboard.
    fill();
}

CSimulationMenu::~CSimulationMenu() = default;

void CSimulationMenu::fill()
{
    m_menu->clear();
    qDeleteAll(m_menu->findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly));
    const QVector<CSimulatedCameraState> cameras = m_simulation.getCameras();
    for (const CSimulatedCameraState &camera : cameras) {
        QMenu *const menu = m_menu->addMenu(
            QString(camera.displayName).replace(QLatin1Char('&'), QLatin1String("&&")));
        QAction *const pluggedAction = menu->addAction(tr("&Plugged in"));
        pluggedAction->setCheckable(true);
        pluggedAction->setChecked(camera.plugged);
        connect(pluggedAction, &QAction::triggered, this, [this, id = camera.id](bool plugged) {
            if (plugged)
                m_simulation.plugIn(id);
            else
                m_simulation.unplug(id);
        });
        QAction *const busyAction = menu->addAction(tr("In &use elsewhere"));
        busyAction->setCheckable(true);
        busyAction->setChecked(camera.busy);
        busyAction->setEnabled(camera.plugged);
        connect(busyAction, &QAction::triggered, this,
                [this, id = camera.id](bool busy) { m_simulation.setBusy(id, busy); });
    }
}

} // namespace Viewer::AppCore
