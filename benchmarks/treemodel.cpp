#include "model/firmwareupdatetreemodel.h"
#include "support/fakeinfos.h"

#include <QElapsedTimer>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

using Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity;
using Plugin::FirmwareUpdater::Internal::Model::CFirmwareUpdateTreeModel;

namespace {

double measureMs(const std::function<void()> &action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

struct CFigure
{
    const char *name;
    double ms;
};

std::vector<CFigure> measure(int cameraCount)
{
    const QString layerId = QStringLiteral("layer");
    QStringList ids;
    QVector<TestSupport::CCameraDescription> descriptions;
    for (int i = 0; i < cameraCount; ++i) {
        ids.append(
            QStringLiteral("camera-%1").arg((i * 7919LL) % cameraCount, 6, 10, QLatin1Char('0')));
        descriptions.append({ids.last()});
    }
    const auto layers = QVector<Plugin::CameraPool::TransportLayerInfoPtr>{
        TestSupport::makeLayer(layerId, descriptions)};

    std::vector<CFigure> figures;
    auto model = std::make_unique<CFirmwareUpdateTreeModel>(nullptr);
    figures.push_back({"load", measureMs([&] { model->setTransportLayerInfoVector(layers); })});
    figures.push_back({"tick a group", measureMs([&] {
                           const QModelIndex group = model->index(0, 0, model->index(0, 0));
                           model->setData(group, true, Qt::EditRole);
                           model->updateAllNodesBySelection(group);
                       })});
    figures.push_back({"find each by id", measureMs([&] {
                           for (const QString &id : qAsConst(ids)) {
                               if (!model->getModelIndexForCameraId(layerId, id, 0).isValid())
                                   qFatal("camera not found");
                           }
                       })});

    QList<CFirmwareUpdateEntity *> copies;
    for (const QPointer<CFirmwareUpdateEntity> &camera : model->getSelectedCameraList())
        copies.append(new CFirmwareUpdateEntity(*camera));
    CFirmwareUpdateTreeModel flat(nullptr);
    figures.push_back({"fill the flat list", measureMs([&] { flat.setCameraDeviceList(copies); })});
    figures.push_back(
        {"destroy the tree", measureMs([&] { model->setTransportLayerInfoVector({}); })});
    return figures;
}

} // namespace

/// Prints the cost of the model at 100,000 cameras as a ratio to that at 10,000: about 10 is
/// linear.
int main()
{
    constexpr int baseline = 10000;
    constexpr int large = 100000;
    measure(baseline); // warms caches and allocator
    const std::vector<CFigure> small = measure(baseline);
    const std::vector<CFigure> big = measure(large);
    std::printf("%-20s %12s %12s %8s\n", "", "10,000 (ms)", "100,000 (ms)", "ratio");
    for (std::size_t i = 0; i < small.size(); ++i) {
        std::printf("%-20s %12.1f %12.1f %8.1f\n", small[i].name, small[i].ms, big[i].ms,
                    big[i].ms / small[i].ms);
    }
    return 0;
}
