#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QVersionNumber>

namespace Viewer::PluginSystem {

/// What a plug-in needs: another plug-in, or a part of the viewer, at a version.
struct CPluginDependency
{
    QString name;
    QVersionNumber version;
};

/// How far a plug-in has come.
enum class EPluginState {
    Found, ///< its metadata has been read
    Resolved, ///< everything that it depends on is there
    Loaded, ///< its object exists
    Running, ///< initialized, or one of the viewer's own parts
    Stopped, ///< un-initialized and destroyed when the viewer ended
    Failed, ///< out of the game; the error text says why
};

/// What the viewer knows about one plug-in without running any of its code, and what has become of
/// it.
class CPluginSpec
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginSystem::CPluginSpec)

public:
    /// A part of the viewer itself, which other plug-ins can depend on. It counts as running.
    static CPluginSpec createBuiltIn(const QString &name, const QString &version,
                                     const QString &compatVersion, const QString &description);

    /// Reads what QPluginLoader::metaData() gives for the library @p filePath. The result has
    /// failed, with an error text, when the interface id or the major version of Qt is not the
    /// viewer's or a key is missing or malformed.
    static CPluginSpec createFromMetaData(const QString &filePath, const QJsonObject &metaData);

    /// A plug-in that was built with the major version @p major of Qt, and this viewer was not.
    static CPluginSpec createOfOtherQt(const QString &filePath, int major);

    /// A library that cannot be read at all, or must not be.
    static CPluginSpec createBroken(const QString &filePath, const QString &error);

    [[nodiscard]] const QString &getName() const;
    [[nodiscard]] const QVersionNumber &getVersion() const;
    [[nodiscard]] const QVersionNumber &getCompatVersion() const;
    [[nodiscard]] const QString &getDescription() const;
    [[nodiscard]] const QString &getVendor() const;
    [[nodiscard]] const QList<CPluginDependency> &getDependencies() const;

    /// The library's absolute path; empty for the viewer's own parts.
    [[nodiscard]] const QString &getFilePath() const;

    /// True when the viewer must not start without this plug-in.
    [[nodiscard]] bool isRequired() const;
    [[nodiscard]] bool isBuiltIn() const;

    /// True when whoever was written for @p version can use this one:
    /// compatible version <= @p version <= version.
    [[nodiscard]] bool provides(const QVersionNumber &version) const;

    [[nodiscard]] EPluginState getState() const;
    void setState(EPluginState state);

    [[nodiscard]] bool hasFailed() const;

    /// One sentence without the plug-in's name; empty unless the plug-in has failed.
    [[nodiscard]] const QString &getError() const;
    void setError(const QString &error);

private:
    void setOtherQt(int major);
    bool readKeys(const QJsonObject &keys);
    bool readDependencies(const QJsonObject &keys);
    bool readVersion(const QJsonObject &object, const QString &key, QVersionNumber &version);

    QString m_name;
    QVersionNumber m_version;
    QVersionNumber m_compatVersion;
    QString m_description;
    QString m_vendor;
    QList<CPluginDependency> m_dependencies;
    QString m_filePath;
    QString m_error;
    EPluginState m_state = EPluginState::Found;
    bool m_required = false;
};

} // namespace Viewer::PluginSystem
