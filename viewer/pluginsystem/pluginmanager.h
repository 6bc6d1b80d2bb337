#pragma once

#include "pluginspec.h"

#include <QCoreApplication>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVector>

#include <functional>

namespace Core::Plugin {
class IPlugin;
}

namespace Viewer::PluginSystem {

class CPluginInitializer;

/// Finds the plug-ins and leads them through their life. A plug-in that fails on the way is left
/// out, with those that depend on it, and its entry in the list says why. GUI thread.
class CPluginManager : public QObject
{
    Q_OBJECT

public:
    /// @p initializer is borrowed and outlives this object.
    explicit CPluginManager(CPluginInitializer *initializer, QObject *parent = nullptr);

    /// Ends the plug-ins if shutDown() was not called.
    ~CPluginManager() override;

    /// Lets plug-ins depend on a part of the viewer. Call before start().
    void addBuiltIn(const CPluginSpec &spec);

    /// Looks for plug-ins in @p directories and starts those that can be started: constructs all,
    /// sets @p language on all, initializes all, post-initializes all, in the order of their
    /// dependencies. False when a required plug-in failed; the caller reports getFailures() and
    /// ends.
    bool start(const QStringList &directories, const QString &language);

    /// Announces the end to all plug-ins, un-initializes and destroys them, the last one first.
    /// Their libraries stay loaded: objects whose code they hold may live on.
    void shutDown();

    /// The viewer's own parts, then the plug-ins in the order in which they were found.
    [[nodiscard]] const QList<CPluginSpec> &getSpecs() const;

    /// One line for each plug-in that failed: its name, its file and the reason.
    [[nodiscard]] QStringList getFailures() const;

private:
    using Operation = std::function<bool(Core::Plugin::IPlugin &)>;

    [[nodiscard]] QString load(int place);
    void runForAll(const QString &failure, const Operation &operation);
    void fail(int place, const QString &error);
    void destroy(int place);
    [[nodiscard]] bool dependsOnFailed(int place, QString &error) const;
    [[nodiscard]] bool hasRequiredFailure() const;

    CPluginInitializer *const m_initializer;
    QList<CPluginSpec> m_specs;
    QVector<int> m_order;
    QVector<QPointer<Core::Plugin::IPlugin>> m_plugins; ///< as m_specs; null: none, or destroyed
};

} // namespace Viewer::PluginSystem
