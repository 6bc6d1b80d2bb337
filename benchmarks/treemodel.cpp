// What the camera tree costs, beside the same on Qt's own classes.
//
// tick      A click on a model group's box ticks all cameras, with Step 1 on the screen. Anchor:
// the
//           check state of each row of a group is set in a `QStandardItemModel` with a slot that
//           looks at each change and, on the screen with all rows expanded, a `QTreeView`. Neither
//           side repaints within the measure.
// rebuild   A tree is replaced by one of the same size. Anchor: a `QStandardItemModel` is cleared
//           and filled with the same rows of four roles each: text, id, check state and version.
//           A layer's rows are appended before it joins the model, so that nothing is signalled.
// memory    Heap bytes of a tree. Anchor: those of the model that is filled as above.
// look-up   Every camera is found once by its id. Anchor: look-ups of the ids in a `QHash`.
// list      A model takes over a flat list. Anchor: a `QMap` by id is filled in the same order.
// growth    Ten times as many cameras beside the number in the name: 10 would be linear. Caches
//           that no longer hold the tree have their part in the rest.

#include "comparison.h"
#include "state/cameraselectionstep.h"
#include "support/updaterfixture.h"
#include "view/cameraselectiondialog.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTreeView>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Benchmark;
using Plugin::FirmwareUpdater::Internal::State::CCameraSelectionStep;
using Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog;
using TestSupport::CUpdaterFixture;
using Entity = CUpdaterFixture::Entity;
using Model = CUpdaterFixture::Model;
using Layers = QVector<Plugin::CameraPool::TransportLayerInfoPtr>;

static constexpr int ID_ROLE = Qt::UserRole + 1;
static constexpr int VERSION_ROLE = Qt::UserRole + 2;

static void check(bool isAsExpected, const char *text)
{
    if (isAsExpected)
        return;
    std::fprintf(stderr, "%s\n", text);
    std::exit(EXIT_FAILURE);
}

/// Cameras of one model, in an order that is not that of their ids.
static Layers makeLayers(int cameraCount, int layerCount = 1)
{
    QVector<QVector<TestSupport::CCameraDescription>> cameras(layerCount);
    for (int i = 0; i < cameraCount; ++i) {
        const qint64 number = (i * 7919LL) % cameraCount;
        cameras[i % layerCount].append(
            {QStringLiteral("camera-%1").arg(number, 6, 10, QLatin1Char('0'))});
    }
    Layers layers;
    for (int i = 0; i < layerCount; ++i)
        layers.append(TestSupport::makeLayer(QStringLiteral("layer-%1").arg(i), cameras.at(i)));
    return layers;
}

static QStandardItem *makeItem(const QString &text, const QString &id, const QString &version)
{
    auto *const item = new QStandardItem(text);
    item->setData(id, ID_ROLE);
    item->setCheckState(Qt::Unchecked);
    item->setData(version, VERSION_ROLE);
    return item;
}

static void fillItems(QStandardItemModel &model, const Layers &layers)
{
    model.clear();
    for (const auto &layer : layers) {
        const auto &cameras = layer->getCameraInfoList();
        QStandardItem *const group
            = makeItem(cameras.constFirst()->getModelName(), cameras.constFirst()->getId(), {});
        for (const auto &camera : cameras) {
            group->appendRow(
                makeItem(camera->getDisplayName(), camera->getId(), camera->getFirmwareVersion()));
        }
        QStandardItem *const layerItem = makeItem(layer->getDisplayName(), layer->getId(), {});
        layerItem->appendRow(group);
        model.appendRow(layerItem);
    }
}

static void tickItems(QStandardItemModel &model, Qt::CheckState state)
{
    QStandardItem *const group = model.item(0)->child(0);
    group->setCheckState(state);
    for (int row = 0; row < group->rowCount(); ++row)
        group->child(row)->setCheckState(state);
}

/// Cameras for a flat list, in the order in which the wizard hands them over.
static QList<Entity *> makeTickedCameras(const Layers &layers)
{
    Model model(nullptr);
    model.setTransportLayerInfoVector(layers);
    CUpdaterFixture::tick(model, model.index(0, 0, model.index(0, 0)));
    QList<Entity *> cameras;
    for (const QPointer<Entity> &camera : model.getSelectedCameraList())
        cameras.append(new Entity(*camera));
    return cameras;
}

namespace {

/// Step 1 on the screen.
struct CShownStep
{
    explicit CShownStep(const Layers &layers)
    {
        fixture.model->setTransportLayerInfoVector(layers);
        dialog.setModel(fixture.model);
        step.setCameraSelectionModel(fixture.model);
        dialog.show();
    }

    CUpdaterFixture fixture;
    CCameraSelectionDialog dialog;
    CCameraSelectionStep step{&fixture.host.initializer, &dialog, nullptr};
};

struct CShownItems
{
    explicit CShownItems(const Layers &layers)
    {
        fillItems(items, layers);
        QObject::connect(
            &items, &QAbstractItemModel::dataChanged, &view,
            [this](const QModelIndex &, const QModelIndex &, const QVector<int> &roles) {
                if (roles.contains(Qt::CheckStateRole))
                    ++changeCount;
            });
        view.setModel(&items);
        view.expandAll();
        view.resize(CCameraSelectionDialog().size());
        view.show();
    }

    QStandardItemModel items;
    QTreeView view;
    int changeCount = 0;
};

} // namespace

static Run tickTree(int cameraCount)
{
    const auto shown = std::make_shared<CShownStep>(makeLayers(cameraCount));
    return [shown, cameraCount] {
        Model &model = *shown->fixture.model;
        const QModelIndex group = model.index(0, 0, model.index(0, 0));
        CUpdaterFixture::tick(model, group, false);
        QCoreApplication::processEvents();
        const double cost = measureThreadMs([&] { CUpdaterFixture::tick(model, group); });
        check(model.getSelectedCameraList().size() == cameraCount, "Not all cameras are ticked.");
        return cost;
    };
}

static Run tickItems(int cameraCount)
{
    const auto shown = std::make_shared<CShownItems>(makeLayers(cameraCount));
    return [shown, cameraCount] {
        tickItems(shown->items, Qt::Unchecked);
        QCoreApplication::processEvents();
        shown->changeCount = 0;
        const double cost = measureThreadMs([&] { tickItems(shown->items, Qt::Checked); });
        check(shown->changeCount == cameraCount + 1, "Not all items are ticked.");
        return cost;
    };
}

static Run rebuildTree(int cameraCount, int layerCount, bool withLookUp = false)
{
    const auto model = std::make_shared<Model>(nullptr);
    return [model, withLookUp, layers = makeLayers(cameraCount, layerCount)] {
        return measureThreadMs([&] {
            model->setTransportLayerInfoVector(layers);
            if (withLookUp)
                (void)model->getModelIndexForCameraId({}, {}, 0);
        });
    };
}

static Run rebuildItems(int cameraCount, int layerCount)
{
    const auto items = std::make_shared<QStandardItemModel>();
    return [items, layers = makeLayers(cameraCount, layerCount)] {
        return measureThreadMs([&] { fillItems(*items, layers); });
    };
}

static Run weighTree(int cameraCount, bool withLookUp)
{
    return [withLookUp, layers = makeLayers(cameraCount)] {
        Model model(nullptr);
        return measureHeapBytes([&] {
            model.setTransportLayerInfoVector(layers);
            if (withLookUp)
                (void)model.getModelIndexForCameraId({}, {}, 0);
        });
    };
}

static Run weighItems(int cameraCount)
{
    return [layers = makeLayers(cameraCount)] {
        QStandardItemModel items;
        return measureHeapBytes([&] { fillItems(items, layers); });
    };
}

static Run lookUp(std::shared_ptr<Model> model, const QString &layerId, const QStringList &ids)
{
    return [model, layerId, ids] {
        return measureThreadMs([&] {
            for (const QString &id : ids) {
                check(model->getModelIndexForCameraId(layerId, id, 0).isValid(),
                      "A camera is not found.");
            }
        });
    };
}

static Run lookUpInHash(const QStringList &ids)
{
    QHash<QString, const void *> hash;
    for (const QString &id : ids)
        hash.insert(id, &id);
    return [hash, ids] {
        return measureThreadMs([&] {
            for (const QString &id : ids)
                check(hash.value(id), "An id is not found.");
        });
    };
}

static Run takeOverList(int cameraCount)
{
    const auto model = std::make_shared<Model>(nullptr);
    return [model, layers = makeLayers(cameraCount)] {
        model->setCameraDeviceList({});
        const QList<Entity *> cameras = makeTickedCameras(layers);
        return measureThreadMs([&] { model->setCameraDeviceList(cameras); });
    };
}

static Run fillMap(const QStringList &ids)
{
    const auto value = std::make_shared<QObject>();
    return [value, ids] {
        QMap<QString, QPointer<QObject>> map;
        return measureThreadMs([&] {
            for (const QString &id : ids)
                map.insert(id, value.get());
        });
    };
}

static QByteArray makeName(const char *measure, int cameraCount)
{
    return QStringLiteral("%1, %L2 cameras")
        .arg(QLatin1String(measure))
        .arg(cameraCount)
        .toLatin1();
}

static void compareRebuild(int cameraCount)
{
    compare(makeName("rebuild", cameraCount), atMost(0.6), rebuildTree(cameraCount, 1),
            rebuildItems(cameraCount, 1));
    compare(makeName("rebuild with one look-up", cameraCount), atMost(0.6),
            rebuildTree(cameraCount, 1, true), rebuildItems(cameraCount, 1));
}

static void compareMemory(int cameraCount)
{
    compare(makeName("memory", cameraCount), atMost(0.8), weighTree(cameraCount, false),
            weighItems(cameraCount), 1);
    compare(makeName("memory after a look-up", cameraCount), atMost(0.8),
            weighTree(cameraCount, true), weighItems(cameraCount), 1);
}

static void compareLookUp(int cameraCount)
{
    const Layers layers = makeLayers(cameraCount);
    const auto tree = std::make_shared<Model>(nullptr);
    tree->setTransportLayerInfoVector(layers);
    QStringList ids;
    for (const auto &camera : layers.constFirst()->getCameraInfoList())
        ids.append(camera->getId());
    compare(makeName("look-up in the tree", cameraCount), atMost(5.5),
            lookUp(tree, layers.constFirst()->getId(), ids), lookUpInHash(ids));

    const auto list = std::make_shared<Model>(nullptr);
    list->setCameraDeviceList(makeTickedCameras(layers));
    ids.sort();
    compare(makeName("look-up in the list", cameraCount), atMost(4.5), lookUp(list, {}, ids),
            lookUpInHash(ids));
    compare(makeName("list", cameraCount), atMost(1.4), takeOverList(cameraCount), fillMap(ids));
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);

    printHeader();
    compare(makeName("tick", 1000), atMost(0.1), tickTree(1000), tickItems(1000));
    compare(makeName("tick", 10000), atMost(0.045), tickTree(10000), tickItems(10000));
    for (const int cameraCount : {1000, 10000, 100000})
        compareRebuild(cameraCount);
    compare(makeName("rebuild of 100 layers", 100000), atMost(0.7), rebuildTree(100000, 100),
            rebuildItems(100000, 100));
    for (const int cameraCount : {1000, 10000, 100000})
        compareMemory(cameraCount);
    for (const int cameraCount : {10000, 100000})
        compareLookUp(cameraCount);

    compare(makeName("growth of the tick", 10000), atMost(20), tickTree(100000), tickTree(10000));
    compare(makeName("growth of the rebuild", 10000), atMost(20), rebuildTree(100000, 1, true),
            rebuildTree(10000, 1, true));
    compare(makeName("growth of the list", 10000), atMost(20), takeOverList(100000),
            takeOverList(10000));
    return EXIT_SUCCESS;
}
