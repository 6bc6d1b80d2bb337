#pragma once

#include "pluginspec.h"

#include <QCoreApplication>
#include <QHash>
#include <QVector>

namespace Viewer::PluginSystem {

/// Decides which plug-ins can be started, and in which order.
class CDependencyResolver
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginSystem::CDependencyResolver)

public:
    /// Marks each entry of @p specs that is not running or failed already as resolved or failed.
    /// Of two plug-ins of one name the second fails. Returns the places in @p specs of the resolved
    /// ones, each behind those it depends on and otherwise in the given order.
    [[nodiscard]] static QVector<int> resolve(QList<CPluginSpec> &specs);

private:
    explicit CDependencyResolver(QList<CPluginSpec> &specs);

    void collectNames();
    void visit(int place);
    [[nodiscard]] QString checkDependency(const CPluginDependency &dependency);

    QList<CPluginSpec> &m_specs;
    QHash<QString, int> m_places;
    QVector<int> m_path; ///< from the plug-in that was asked for to the one being looked at
    QVector<int> m_order;
};

} // namespace Viewer::PluginSystem
