#include "cameraidentities.h"

namespace Viewer::Camera::GenICam {

void CCameraIdentities::assign(QVector<CFoundCamera> &cameras)
{
    QHash<QString, QVector<CFoundCamera *>> groups;
    for (CFoundCamera &camera : cameras)
        groups[camera.getIdentity()].append(&camera);
    for (auto group = groups.cbegin(); group != groups.cend(); ++group)
        assign(*group, m_known[group.key()]);
}

void CCameraIdentities::assign(const QVector<CFoundCamera *> &twins, QVector<CKnownCamera> &known)
{
    const auto isSameHardware = [](const CFoundCamera &camera, const CKnownCamera &other) {
        return camera.hardwareAddress == other.hardwareAddress;
    };
    const auto isSame = [&](const CFoundCamera &camera, const CKnownCamera &other) {
        return isSameHardware(camera, other) && camera.address == other.address;
    };
    const auto hasMoved = [&](const CFoundCamera &camera, const CKnownCamera &other) {
        return isSameHardware(camera, other) && !camera.hardwareAddress.isEmpty();
    };
    // As long as nobody has seen a twin, a camera that cannot be told from the known one is it.
    const bool hadTwin = known.size() > 1 || twins.size() > 1;
    const auto isNoOther = [&](const CFoundCamera &camera, const CKnownCamera &other) {
        return !hadTwin && (camera.hardwareAddress.isEmpty() || other.hardwareAddress.isEmpty());
    };

    QVector<CFoundCamera *> missing = twins;
    QSet<int> taken;
    const auto match = [&](const auto &fits) {
        for (CFoundCamera *&camera : missing) {
            for (int i = 0; camera && i < known.size(); ++i) {
                if (taken.contains(i) || !fits(*camera, known.at(i)))
                    continue;
                taken.insert(i);
                camera->id = known.at(i).id;
                known[i].address = camera->address;
                if (known[i].hardwareAddress.isEmpty())
                    known[i].hardwareAddress = camera->hardwareAddress;
                camera = nullptr;
            }
        }
    };
    // The surest ones first, so that none of them loses its id to another camera.
    match(isSame);
    match(hasMoved);
    match(isNoOther);
    for (CFoundCamera *const camera : qAsConst(missing)) {
        if (!camera)
            continue;
        camera->id = makeId(*camera, known.isEmpty());
        known.append({camera->id, camera->hardwareAddress, camera->address});
    }
    for (CFoundCamera *const camera : twins)
        camera->isAmbiguous = twins.size() > 1;
}

QString CCameraIdentities::makeId(const CFoundCamera &camera, bool isFirst)
{
    const QString place
        = camera.hardwareAddress.isEmpty() ? camera.address : camera.hardwareAddress;
    QString id = camera.getIdentity();
    if (!isFirst)
        id += QLatin1Char('@') + place;
    // A camera may give itself a serial number that looks like the id of another one.
    while (m_ids.contains(id))
        id += QStringLiteral("@%1").arg(m_ids.size());
    m_ids.insert(id);
    return id;
}

} // namespace Viewer::Camera::GenICam
