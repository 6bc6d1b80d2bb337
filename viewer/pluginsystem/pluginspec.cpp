#include "pluginspec.h"

#include "core/iplugin.h"

#include <QFileInfo>
#include <QJsonArray>

namespace Viewer::PluginSystem {

CPluginSpec CPluginSpec::createBuiltIn(const QString &name, const QString &version,
                                       const QString &compatVersion, const QString &description)
{
    CPluginSpec spec;
    spec.m_name = name;
    spec.m_version = QVersionNumber::fromString(version);
    spec.m_compatVersion = QVersionNumber::fromString(compatVersion);
    spec.m_description = description;
    spec.m_state = EPluginState::Running;
    return spec;
}

CPluginSpec CPluginSpec::createFromMetaData(const QString &filePath, const QJsonObject &metaData)
{
    CPluginSpec spec;
    spec.m_filePath = filePath;
    // Stands in until the metadata gives the real name, so that every message can name something.
    spec.m_name = QFileInfo(filePath).completeBaseName();
    const QJsonObject keys = metaData.value(QLatin1String("MetaData")).toObject();
    // Read first, also for a foreign interface id: the list then shows the name and the version.
    const bool complete = spec.readKeys(keys);

    const QString interfaceId = metaData.value(QLatin1String("IID")).toString();
    const QString ownInterfaceId = QStringLiteral(NUVEX_VIEWER_PLUGIN_IID);
    if (interfaceId != ownInterfaceId) {
        spec.setError(tr("It was built for the interface \"%1\", but this viewer has \"%2\".")
                          .arg(interfaceId, ownInterfaceId));
    } else if (const int major = metaData.value(QLatin1String("version")).toInt(QT_VERSION) >> 16;
               major != QT_VERSION_MAJOR) {
        spec.setOtherQt(major);
    } else if (!complete) {
        spec.m_state = EPluginState::Failed;
    }
    return spec;
}

CPluginSpec CPluginSpec::createOfOtherQt(const QString &filePath, int major)
{
    CPluginSpec spec = createBroken(filePath, {});
    spec.setOtherQt(major);
    return spec;
}

void CPluginSpec::setOtherQt(int major)
{
    setError(
        tr("It was built with Qt %1, but this viewer needs plug-ins that were built with Qt %2.")
            .arg(major)
            .arg(QT_VERSION_MAJOR));
}

CPluginSpec CPluginSpec::createBroken(const QString &filePath, const QString &error)
{
    CPluginSpec spec;
    spec.m_filePath = filePath;
    spec.m_name = QFileInfo(filePath).completeBaseName();
    spec.setError(error);
    return spec;
}

bool CPluginSpec::readKeys(const QJsonObject &keys)
{
    m_required = keys.value(QLatin1String("Required")).toBool();
    m_description = keys.value(QLatin1String("Description")).toString();
    m_vendor = keys.value(QLatin1String("Vendor")).toString();
    const QString name = keys.value(QLatin1String("Name")).toString();
    if (name.isEmpty()) {
        m_error = tr("Its metadata has no \"Name\".");
        return false;
    }
    m_name = name;
    return readVersion(keys, QStringLiteral("Version"), m_version)
        && readVersion(keys, QStringLiteral("CompatVersion"), m_compatVersion)
        && readDependencies(keys);
}

bool CPluginSpec::readDependencies(const QJsonObject &keys)
{
    const QJsonValue value = keys.value(QLatin1String("Dependencies"));
    if (!value.isUndefined() && !value.isArray()) {
        m_error = tr("The \"Dependencies\" of its metadata are not a list.");
        return false;
    }
    const QJsonArray entries = value.toArray();
    for (const QJsonValue &entry : entries) {
        const QJsonObject object = entry.toObject();
        CPluginDependency dependency;
        dependency.name = object.value(QLatin1String("Name")).toString();
        if (dependency.name.isEmpty()) {
            m_error = tr("A dependency in its metadata has no \"Name\".");
            return false;
        }
        if (!readVersion(object, QStringLiteral("Version"), dependency.version))
            return false;
        m_dependencies.append(dependency);
    }
    return true;
}

bool CPluginSpec::readVersion(const QJsonObject &object, const QString &key,
                              QVersionNumber &version)
{
    const QString text = object.value(key).toString();
    int suffixIndex = 0;
    version = QVersionNumber::fromString(text, &suffixIndex);
    if (!version.isNull() && suffixIndex == text.size())
        return true;
    m_error = tr("The \"%1\" of \"%2\" in its metadata is not a version number: \"%3\".")
                  .arg(key, object.value(QLatin1String("Name")).toString(), text);
    return false;
}

const QString &CPluginSpec::getName() const
{
    return m_name;
}

const QVersionNumber &CPluginSpec::getVersion() const
{
    return m_version;
}

const QVersionNumber &CPluginSpec::getCompatVersion() const
{
    return m_compatVersion;
}

const QString &CPluginSpec::getDescription() const
{
    return m_description;
}

const QString &CPluginSpec::getVendor() const
{
    return m_vendor;
}

const QList<CPluginDependency> &CPluginSpec::getDependencies() const
{
    return m_dependencies;
}

const QString &CPluginSpec::getFilePath() const
{
    return m_filePath;
}

bool CPluginSpec::isRequired() const
{
    return m_required;
}

bool CPluginSpec::isBuiltIn() const
{
    return m_filePath.isEmpty();
}

bool CPluginSpec::provides(const QVersionNumber &version) const
{
    return m_compatVersion <= version && version <= m_version;
}

EPluginState CPluginSpec::getState() const
{
    return m_state;
}

void CPluginSpec::setState(EPluginState state)
{
    m_state = state;
}

bool CPluginSpec::hasFailed() const
{
    return m_state == EPluginState::Failed;
}

const QString &CPluginSpec::getError() const
{
    return m_error;
}

void CPluginSpec::setError(const QString &error)
{
    m_error = error;
    m_state = EPluginState::Failed;
}

} // namespace Viewer::PluginSystem
