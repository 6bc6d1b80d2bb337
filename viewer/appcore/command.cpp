#include "command.h"

#include <QApplication>

namespace Viewer::AppCore {

CCommand::CCommand(QAction *action, const Core::CId &id, bool active)
    : m_id(id)
    , m_active(active)
    , m_source(action)
    , m_action(std::make_unique<QAction>())
{
    m_action->setObjectName(id.toString());
    connect(m_action.get(), &QAction::triggered, this, &CCommand::onTriggered);
    if (m_source) {
        connect(m_source, &QAction::changed, this, &CCommand::onSourceChanged);
        connect(m_source, &QObject::destroyed, this, [this] { m_action.reset(); });
        onSourceChanged();
    } else {
        m_action.reset();
    }
}

CCommand::~CCommand() = default;

Core::CId CCommand::getId() const
{
    return m_id;
}

QAction *CCommand::getAction() const
{
    return m_action.get();
}

void CCommand::onSourceChanged()
{
    m_action->setText(m_source->text());
    m_action->setIcon(m_source->icon());
    m_action->setToolTip(m_source->toolTip());
    m_action->setStatusTip(m_source->statusTip());
    m_action->setCheckable(m_source->isCheckable());
    m_action->setChecked(m_source->isChecked());
    m_action->setEnabled(m_active && m_source->isEnabled());
    m_action->setVisible(m_source->isVisible());
}

void CCommand::onTriggered()
{
    // Neither a disabled entry nor a modal dialog stops code that triggers the action; a plug-in
    // whose dialog is open must not be started a second time.
    if (m_source && m_action->isEnabled() && !QApplication::activeModalWidget())
        m_source->trigger();
}

} // namespace Viewer::AppCore
