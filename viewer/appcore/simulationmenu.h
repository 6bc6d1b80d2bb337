#pragma once

#include <QObject>

class QMenu;

namespace Viewer::Camera::Simulation {
class CSimulation;
}

namespace Viewer::AppCore {

/// The menu that stands in for cables and for other applications: each described camera can be
/// unplugged, plugged in, made busy and made free.
class CSimulationMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills @p menu each time it opens. Both arguments are borrowed and outlive this object.
    CSimulationMenu(Camera::Simulation::CSimulation &simulation, QMenu *menu);
    ~CSimulationMenu() override;

private:
    void fill();

    Camera::Simulation::CSimulation &m_simulation;
    QMenu *const m_menu;
};

} // namespace Viewer::AppCore
