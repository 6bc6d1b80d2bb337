#include "cameraselection.h"

#include "viewer/text/visibletext.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

namespace Viewer::NuvexUpdate {

using CameraInfos = CCameraSelection::CameraInfos;
using Plugin::CameraPool::CameraInfoPtr;
using Text::shorten;

namespace {

constexpr int NEAREST_COUNT = 3;
/// A name of any length can be asked for; so many letters tell ids apart.
constexpr int COMPARED_LENGTH = 64;

/// How many letters have to be inserted, left out or replaced to make one of the other.
int getDistance(const QString &left, const QString &right)
{
    std::vector<int> row(static_cast<std::size_t>(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < left.size(); ++i) {
        int diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const int replaced
                = diagonal + (left.at(i) == right.at(static_cast<int>(j) - 1) ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({row[j] + 1, row[j - 1] + 1, replaced}));
        }
    }
    return row.back();
}

int getDistance(const CameraInfoPtr &camera, const QString &name)
{
    const auto get = [&name](const QString &other) {
        return getDistance(name.left(COMPARED_LENGTH).toLower(),
                           other.left(COMPARED_LENGTH).toLower());
    };
    return std::min(get(camera->getId()), get(camera->getSerialNumber()));
}

QString describe(const CameraInfoPtr &camera)
{
    return QStringLiteral("%1 (%2)").arg(shorten(camera->getId()),
                                         shorten(camera->getSerialNumber()));
}

QString join(const CameraInfos &cameras)
{
    QStringList texts;
    for (const CameraInfoPtr &camera : cameras)
        texts.append(describe(camera));
    return texts.join(QStringLiteral(", "));
}

} // namespace

CCameraSelection::CResult CCameraSelection::select(const CameraInfos &found,
                                                   const CUpdateRequest &request)
{
    CResult result;
    if (found.isEmpty()) {
        result.fault = {QStringLiteral("no-camera"), tr("No camera was found.")};
    } else if (request.isForAll) {
        result.cameras = found;
    } else if (!request.modelName.isEmpty()) {
        std::copy_if(found.begin(), found.end(), std::back_inserter(result.cameras),
                     [&request](const CameraInfoPtr &camera) {
                         return camera->getModelName() == request.modelName;
                     });
        if (result.cameras.isEmpty())
            result.fault
                = {QStringLiteral("unknown-model"),
                   tr("There is no camera of the model \"%1\".").arg(shorten(request.modelName))};
    } else {
        for (const QString &name : request.cameras) {
            result.fault = addNamed(found, name, result.cameras);
            if (!result.fault.key.isEmpty())
                break;
        }
    }
    if (!result.fault.key.isEmpty()) {
        result.cameras.clear();
        result.exitCode = result.fault.key == QLatin1String("ambiguous-camera")
            ? EExitCode::WrongUse
            : EExitCode::NoCamera;
    }
    return result;
}

CMessage CCameraSelection::addNamed(const CameraInfos &found, const QString &name,
                                    CameraInfos &cameras)
{
    CameraInfos matching;
    for (const CameraInfoPtr &camera : found) {
        if (camera->getId() == name) {
            matching = {camera};
            break;
        }
        if (camera->getSerialNumber() == name)
            matching.append(camera);
    }
    if (matching.isEmpty())
        return describeUnknown(found, name);
    if (matching.size() > 1)
        return {QStringLiteral("ambiguous-camera"),
                tr("%n camera(s) have the serial number \"%1\"; name the one that is meant by its "
                   "id: %2.",
                   nullptr, matching.size())
                    .arg(shorten(name), join(matching.mid(0, NEAREST_COUNT)))};
    if (!cameras.contains(matching.constFirst()))
        cameras.append(matching);
    return {};
}

CMessage CCameraSelection::describeUnknown(const CameraInfos &found, const QString &name)
{
    std::vector<std::pair<int, CameraInfoPtr>> nearest;
    for (const CameraInfoPtr &camera : found)
        nearest.emplace_back(getDistance(camera, name), camera);
    std::stable_sort(nearest.begin(), nearest.end(),
                     [](const auto &left, const auto &right) { return left.first < right.first; });
    nearest.resize(std::min<std::size_t>(nearest.size(), NEAREST_COUNT));
    CameraInfos named;
    for (const auto &[distance, camera] : nearest)
        named.append(camera);
    return {QStringLiteral("unknown-camera"),
            tr("There is no camera with the id or serial number \"%1\"; the nearest are %2.")
                .arg(shorten(name), join(named))};
}

} // namespace Viewer::NuvexUpdate
