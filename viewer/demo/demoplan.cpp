#include "demoplan.h"

#include "core/baseexception.h"

#include <QDir>
#include <QMap>
#include <QVersionNumber>

#include <algorithm>

namespace Viewer::Demo {

using namespace Plugin::CameraPool;

using CameraList = QVector<CameraInfoPtr>;

// The model of the built-in cameras that the demonstration takes when it is there.
static const QLatin1String PREFERRED_MODEL("VX-1400M");

static QMap<QString, CameraList> groupByModel(const ICameraEnumerationService &enumeration)
{
    QMap<QString, CameraList> groups;
    const QVector<TransportLayerInfoPtr> layers = enumeration.getTransportLayerInfoVector();
    for (const TransportLayerInfoPtr &layer : layers) {
        for (const CameraInfoPtr &camera : layer->getCameraInfoList()) {
            if (camera->getCameraStatusCode() == 0)
                groups[camera->getModelName()].append(camera);
        }
    }
    return groups;
}

// The version that all of the cameras get from the file; empty when it does not fit all of them.
static QString findVersion(IDeviceFirmwareUpdateService &updates, const QString &file,
                           const CameraList &cameras)
{
    QString version;
    try {
        const auto infos = updates.getFirmwareUpdateInfos(file, {});
        for (const CameraInfoPtr &camera : cameras) {
            QVector<QSharedPointer<IFirmwareUpdateInfo>> compatible;
            bool updatable = false;
            if (!updates.getCompatibleFirmwareUpdates(camera, infos, compatible, updatable)
                || compatible.isEmpty())
                return {};
            if (!version.isEmpty() && version != compatible.constFirst()->getVersion())
                return {};
            version = compatible.constFirst()->getVersion();
        }
    } catch (const Core::Exception::BaseException &) {
        // The samples include faulty files.
        return {};
    }
    return version;
}

CDemoPlan CDemoPlan::create(ICameraEnumerationService &enumeration,
                            IDeviceFirmwareUpdateService &updates, const QString &samplesDirectory,
                            QString &error)
{
    const QMap<QString, CameraList> groups = groupByModel(enumeration);
    QStringList models = groups.keys();
    std::stable_sort(models.begin(), models.end(), [&groups](const auto &left, const auto &right) {
        if ((left == PREFERRED_MODEL) != (right == PREFERRED_MODEL))
            return left == PREFERRED_MODEL;
        return groups.value(left).size() > groups.value(right).size();
    });
    const QFileInfoList files
        = QDir(samplesDirectory).entryInfoList({QStringLiteral("*.guf")}, QDir::Files, QDir::Name);
    CDemoPlan plan;
    for (const QString &model : qAsConst(models)) {
        for (const QFileInfo &file : files) {
            const QString version
                = findVersion(updates, file.absoluteFilePath(), groups.value(model));
            if (version.isEmpty()
                || (!plan.cameras.isEmpty()
                    && QVersionNumber::fromString(version)
                        <= QVersionNumber::fromString(plan.targetVersion)))
                continue;
            plan = {model, file.absoluteFilePath(), version, groups.value(model)};
        }
        if (!plan.cameras.isEmpty())
            return plan;
    }
    error = QStringLiteral("no update file in \"%1\" fits any of the %2 camera models")
                .arg(QDir::toNativeSeparators(samplesDirectory))
                .arg(models.size());
    return plan;
}

} // namespace Viewer::Demo
