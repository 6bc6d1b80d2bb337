#include "pluginmanager.h"

#include "dependencyresolver.h"
#include "logging.h"
#include "plugininitializer.h"
#include "pluginscanner.h"

#include "core/iplugin.h"

#include <QDir>
#include <QPluginLoader>

#include <algorithm>

namespace Viewer::PluginSystem {

// Runs code of a plug-in. What it throws must not end the viewer, whatever it is; the reason goes
// into @p error.
template <typename Function>
static bool guarded(QString &error, Function function)
{
    try {
        return function();
    } catch (const std::exception &exception) {
        error = QString::fromUtf8(exception.what());
    } catch (...) {
        error = CPluginManager::tr("an unknown exception");
    }
    return false;
}

CPluginManager::CPluginManager(CPluginInitializer *initializer, QObject *parent)
    : QObject(parent)
    , m_initializer(initializer)
{
}

CPluginManager::~CPluginManager()
{
    shutDown();
}

void CPluginManager::addBuiltIn(const CPluginSpec &spec)
{
    m_specs.append(spec);
}

bool CPluginManager::start(const QStringList &directories, const QString &language)
{
    m_specs.append(CPluginScanner::scan(directories));
    m_order = CDependencyResolver::resolve(m_specs);
    for (const CPluginSpec &spec : qAsConst(m_specs))
        qCDebug(pluginLog).noquote() << "found" << spec.getName() << spec.getVersion().toString()
                                     << spec.getFilePath() << spec.getError();
    m_plugins.resize(m_specs.size());
    // Known before any code of a plug-in runs.
    if (hasRequiredFailure())
        return false;

    for (const int place : qAsConst(m_order)) {
        const QString error = load(place);
        qCDebug(pluginLog).noquote()
            << (error.isEmpty() ? "loaded" : "cannot load") << m_specs.at(place).getName()
            << m_specs.at(place).getFilePath();
        if (!error.isEmpty())
            fail(place, error);
    }
    runForAll(tr("It could not set its language"), [&language](Core::Plugin::IPlugin &plugin) {
        plugin.setLanguage(language);
        return true;
    });
    runForAll(tr("It could not be initialized"), [this](Core::Plugin::IPlugin &plugin) {
        const int count = m_initializer->getServices().size();
        try {
            if (plugin.initialize(m_initializer))
                return true;
        } catch (...) {
            m_initializer->removeServicesBehind(count);
            throw;
        }
        m_initializer->removeServicesBehind(count);
        return false;
    });
    for (const int place : qAsConst(m_order)) {
        if (m_plugins.at(place))
            m_specs[place].setState(EPluginState::Running);
    }
    runForAll(tr("It could not be connected to the viewer"),
              [](Core::Plugin::IPlugin &plugin) { return plugin.postInitialize(); });
    return !hasRequiredFailure();
}

QString CPluginManager::load(int place)
{
    QString unmet;
    if (dependsOnFailed(place, unmet))
        return unmet;
    QPluginLoader loader(m_specs.at(place).getFilePath());
    // All symbols at once: a plug-in that lacks one fails here and not in the middle of its work.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    QString thrown;
    QObject *instance = nullptr;
    guarded(thrown, [&loader, &instance] {
        instance = loader.instance();
        return true;
    });
    if (!thrown.isEmpty())
        return tr("It could not be constructed: %1.").arg(thrown);
    if (!instance)
        return tr("Its library could not be loaded: %1.").arg(loader.errorString());
    auto *const plugin = qobject_cast<Core::Plugin::IPlugin *>(instance);
    if (!plugin) {
        delete instance;
        return tr("Its library does not contain what its metadata says.");
    }
    m_plugins[place] = plugin;
    m_specs[place].setState(EPluginState::Loaded);
    return {};
}

void CPluginManager::runForAll(const QString &failure, const Operation &operation)
{
    for (const int place : qAsConst(m_order)) {
        if (!m_plugins.at(place))
            continue;
        QString unmet;
        if (dependsOnFailed(place, unmet)) {
            fail(place, unmet);
            continue;
        }
        QString reason;
        Core::Plugin::IPlugin &plugin = *m_plugins.at(place);
        if (guarded(reason, [&operation, &plugin] { return operation(plugin); }))
            continue;
        fail(place, reason.isEmpty() ? tr("%1.").arg(failure) : tr("%1: %2.").arg(failure, reason));
    }
}

void CPluginManager::fail(int place, const QString &error)
{
    const bool initialized = m_specs.at(place).getState() == EPluginState::Running;
    m_specs[place].setError(error);
    qCDebug(pluginLog).noquote() << "refused" << m_specs.at(place).getName() << error;
    Core::Plugin::IPlugin *const plugin = m_plugins.at(place);
    if (initialized && plugin) {
        QString ignored;
        guarded(ignored, [this, plugin] { return plugin->unInitialize(m_initializer); });
    }
    destroy(place);
}

void CPluginManager::destroy(int place)
{
    delete m_plugins.at(place).data();
}

bool CPluginManager::dependsOnFailed(int place, QString &error) const
{
    const QList<CPluginDependency> &dependencies = m_specs.at(place).getDependencies();
    for (const CPluginDependency &dependency : dependencies) {
        const bool met = std::any_of(m_specs.cbegin(), m_specs.cend(), [&](const auto &spec) {
            return spec.getName() == dependency.name && !spec.hasFailed();
        });
        if (!met) {
            error = tr("It needs \"%1\", which could not be started.").arg(dependency.name);
            return true;
        }
    }
    return false;
}

void CPluginManager::shutDown()
{
    QVector<int> running;
    for (const int place : qAsConst(m_order)) {
        if (m_plugins.value(place))
            running.prepend(place);
    }
    QString ignored;
    for (const int place : qAsConst(running)) {
        guarded(ignored, [this, place] {
            m_plugins.at(place)->aboutToUninitialize();
            return true;
        });
    }
    for (const int place : qAsConst(running)) {
        guarded(ignored,
                [this, place] { return m_plugins.at(place)->unInitialize(m_initializer); });
    }
    for (const int place : qAsConst(running)) {
        destroy(place);
        m_specs[place].setState(EPluginState::Stopped);
    }
}

const QList<CPluginSpec> &CPluginManager::getSpecs() const
{
    return m_specs;
}

QStringList CPluginManager::getFailures() const
{
    QStringList failures;
    for (const CPluginSpec &spec : m_specs) {
        if (spec.hasFailed()) {
            failures.append(tr("The plug-in \"%1\" (%2) is not available. %3")
                                .arg(spec.getName(), QDir::toNativeSeparators(spec.getFilePath()),
                                     spec.getError()));
        }
    }
    return failures;
}

bool CPluginManager::hasRequiredFailure() const
{
    // A second copy of a plug-in that runs does not end the start, required or not.
    return std::any_of(m_specs.cbegin(), m_specs.cend(), [this](const CPluginSpec &failed) {
        return failed.hasFailed() && failed.isRequired()
            && std::none_of(m_specs.cbegin(), m_specs.cend(), [&failed](const auto &other) {
                   return other.getName() == failed.getName() && !other.hasFailed();
               });
    });
}

} // namespace Viewer::PluginSystem
