#include "dependencyresolver.h"

#include <QDir>

namespace Viewer::PluginSystem {

CDependencyResolver::CDependencyResolver(QList<CPluginSpec> &specs)
    : m_specs(specs)
{
}

QVector<int> CDependencyResolver::resolve(QList<CPluginSpec> &specs)
{
    CDependencyResolver resolver(specs);
    resolver.collectNames();
    for (int place = 0; place < specs.size(); ++place)
        resolver.visit(place);
    return resolver.m_order;
}

void CDependencyResolver::collectNames()
{
    for (int place = 0; place < m_specs.size(); ++place) {
        CPluginSpec &spec = m_specs[place];
        const int first = m_places.value(spec.getName(), -1);
        // A sound plug-in is not kept out by a broken one of the same name.
        if (first < 0 || m_specs.at(first).hasFailed()) {
            m_places.insert(spec.getName(), place);
        } else if (!spec.hasFailed()) {
            const CPluginSpec &other = m_specs.at(first);
            spec.setError(other.isBuiltIn()
                              ? tr("Its name is that of a part of the viewer.")
                              : tr("A plug-in of the same name was found before: %1.")
                                    .arg(QDir::toNativeSeparators(other.getFilePath())));
        }
    }
}

void CDependencyResolver::visit(int place)
{
    if (m_specs.at(place).getState() != EPluginState::Found)
        return;
    m_path.append(place);
    const QList<CPluginDependency> dependencies = m_specs.at(place).getDependencies();
    QString error;
    for (const CPluginDependency &dependency : dependencies) {
        error = checkDependency(dependency);
        if (!error.isEmpty())
            break;
    }
    m_path.removeLast();
    // A cycle may have failed this plug-in while its dependencies were looked at.
    if (m_specs.at(place).getState() != EPluginState::Found)
        return;
    if (error.isEmpty()) {
        m_specs[place].setState(EPluginState::Resolved);
        m_order.append(place);
    } else {
        m_specs[place].setError(error);
    }
}

QString CDependencyResolver::checkDependency(const CPluginDependency &dependency)
{
    const int place = m_places.value(dependency.name, -1);
    if (place < 0) {
        return tr("It needs \"%1\" %2, which is missing.")
            .arg(dependency.name, dependency.version.toString());
    }
    const int start = m_path.indexOf(place);
    if (start >= 0) {
        QStringList names;
        for (int i = start; i < m_path.size(); ++i)
            names.append(m_specs.at(m_path.at(i)).getName());
        names.append(dependency.name);
        const QString error
            = tr("It is part of a circular dependency: %1.").arg(names.join(QStringLiteral(" > ")));
        for (int i = start; i < m_path.size(); ++i)
            m_specs[m_path.at(i)].setError(error);
        return error;
    }
    if (!m_specs.at(place).provides(dependency.version)) {
        return tr("It needs \"%1\" %2, but version %3 is installed, which is compatible with %4 "
                  "and "
                  "later.")
            .arg(dependency.name, dependency.version.toString(),
                 m_specs.at(place).getVersion().toString(),
                 m_specs.at(place).getCompatVersion().toString());
    }
    visit(place);
    if (m_specs.at(place).hasFailed())
        return tr("It needs \"%1\", which could not be started.").arg(dependency.name);
    return {};
}

} // namespace Viewer::PluginSystem
