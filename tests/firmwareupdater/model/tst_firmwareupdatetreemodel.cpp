#include "support/updaterfixture.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using TestSupport::CUpdaterFixture;
using TestSupport::makeLayer;
using Entity = CUpdaterFixture::Entity;

static QStringList columnTexts(const QAbstractItemModel &model, const QModelIndex &parent,
                               int column = 0)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts.append(model.index(row, column, parent).data().toString());
    return texts;
}

class CFirmwareUpdateTreeModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void namesItsSections();
    void buildsLayersGroupsAndCameras();
    void allowsEditingOfCheckBoxesOnly();
    void findsCamerasById();
    void findsWhatASearchFinds();
    void takesOverAFlatList();
    void copesWithIncompleteNodes();
    void copesWithIncompleteEnumerations();
    void announcesRowsParentsFirst();
    void writesEditableColumns();
    void isAProperItemModel();

private:
    /// The camera with the id @p id on the layer @p layer.
    QModelIndex findCamera(const char *layer, const char *id) const
    {
        return m_model->getModelIndexForCameraId(layer, id, 0);
    }

    const TestSupport::CCameraDescription m_a{"a", "M"};
    const TestSupport::CCameraDescription m_b{"b", "M"};
    const TestSupport::CCameraDescription m_c{"c", "M"};
    const TestSupport::CCameraDescription m_n{"n", "N"};
    std::unique_ptr<CUpdaterFixture::Model> m_model;
};

void CFirmwareUpdateTreeModelTest::init()
{
    m_model = std::make_unique<CUpdaterFixture::Model>(nullptr);
}

void CFirmwareUpdateTreeModelTest::namesItsSections()
{
    QStringList titles;
    for (int section = -1; section < 10; ++section)
        titles.append(m_model->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
    QCOMPARE(titles.join('|'),
             "|Cameras|Id|SelectionStatus|Current Firmware|Firmware Selected|Details|Details|"
             "Details|Enabled|");
    QVERIFY(!m_model->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
}

void CFirmwareUpdateTreeModelTest::buildsLayersGroupsAndCameras()
{
    QSignalSpy resetSpy(m_model.get(), &QAbstractItemModel::modelReset);
    m_model->setTransportLayerInfoVector(
        {makeLayer("empty", {}), makeLayer("l", {m_a, m_n, m_b, m_c})});
    QCOMPARE(resetSpy.count(), 1);
    QCOMPARE(columnTexts(*m_model, {}), QStringList({"Layer l"}));

    const QModelIndex layer = m_model->index(0, 0);
    QVERIFY(!layer.parent().isValid());
    QCOMPARE(columnTexts(*m_model, layer), QStringList({"M", "N"}));

    // The last found camera comes first and stands for the group.
    const QModelIndex group = m_model->index(0, 0, layer);
    QCOMPARE(columnTexts(*m_model, group, 1), QStringList({"c", "b", "a"}));
    QCOMPARE(m_model->index(0, 1, layer).data().toString(), "c");
    QCOMPARE(m_model->index(2, 0, group).parent(), group);
    QCOMPARE(m_model->rowCount(m_model->index(0, 1, layer)), 0);

    m_model->setTransportLayerInfoVector({makeLayer("empty", {})});
    QCOMPARE(m_model->rowCount(), 0);
}

void CFirmwareUpdateTreeModelTest::allowsEditingOfCheckBoxesOnly()
{
    m_model->setTransportLayerInfoVector({makeLayer("l", {m_a})});
    const QModelIndex layer = m_model->index(0, 0);
    const QModelIndex group = m_model->index(0, 0, layer);
    const Qt::ItemFlags base = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(m_model->flags({}), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(m_model->flags(layer), base);
    QCOMPARE(m_model->flags(group), base | Qt::ItemIsEditable);
    QCOMPARE(m_model->flags(m_model->index(0, 0, group)), base | Qt::ItemIsEditable);
    QCOMPARE(m_model->flags(m_model->index(0, 2, group)), base);
}

void CFirmwareUpdateTreeModelTest::findsCamerasById()
{
    m_model->setTransportLayerInfoVector(
        {makeLayer("l1", {m_a, m_n}), makeLayer("l2", {m_a, m_b})});
    const auto find = [this](const char *layerId, const char *cameraId, int column) {
        const QModelIndex found = m_model->getModelIndexForCameraId(layerId, cameraId, column);
        return QString("row %1, id %2, column %3")
            .arg(found.parent().parent().row())
            .arg(found.siblingAtColumn(1).data().toString())
            .arg(found.column());
    };
    const QString nothing = "row -1, id , column -1";
    QCOMPARE(find("l1", "a", 2), "row 0, id a, column 2");
    QCOMPARE(find("l2", "a", 0), "row 1, id a, column 0");
    QCOMPARE(find("l1", "b", 0), nothing);
    QCOMPARE(find("l1", "A", 0), nothing);
    QCOMPARE(find("l1", "a", -1), nothing);
    QCOMPARE(find("l1", "a", 8), nothing);
}

void CFirmwareUpdateTreeModelTest::findsWhatASearchFinds()
{
    // Few ids, so that they meet again and again.
    const Plugin::CameraPool::CameraInfoPtr cameras[]
        = {{}, TestSupport::makeCamera({"a"}), TestSupport::makeCamera({"b"})};
    const Plugin::CameraPool::TransportLayerInfoPtr layers[]
        = {{}, {}, {}, makeLayer("l1", {}), makeLayer("l2", {})};
    QRandomGenerator random(1);
    const auto pick
        = [&random](const auto &values) { return values[random.bounded(int(std::size(values)))]; };
    const auto makeNode = [&] {
        auto *const node = new Entity;
        node->setEntityType(Entity::EFirmwareUpdateEntityType(random.bounded(3)));
        node->setCameraInfo(pick(cameras));
        node->setTransportLayerInfo(pick(layers));
        return node;
    };
    const auto change = [&](Entity *node, Entity *other) {
        QVector<QPointer<Entity>> children = node->getChildren();
        switch (random.bounded(8)) {
        case 0:
            node->setEntityType(Entity::EFirmwareUpdateEntityType(random.bounded(3)));
            break;
        case 1:
            node->setCameraInfo(pick(cameras));
            break;
        case 2:
            node->setTransportLayerInfo(pick(layers));
            break;
        case 3:
            *node = *other;
            break;
        case 4:
            std::reverse(children.begin(), children.end());
            node->setChildren(children);
            break;
        case 5:
            node->addChildEntity(makeNode());
            break;
        case 6:
            // Listed by a node whose child it is not.
            node->setParent(m_model.get());
            break;
        default:
            delete node;
        }
    };
    int hits = 0;
    int misses = 0;
    for (int round = 0; round < 200; ++round) {
        // Nodes of all kinds in all places.
        QVector<QPointer<Entity>> nodes{makeNode(), makeNode()};
        m_model->setCameraDeviceList({nodes.at(0), nodes.at(1)});
        for (int i = 0; i < 15; ++i) {
            const QPointer<Entity> parent = pick(nodes);
            nodes.append(makeNode());
            parent->addChildEntity(nodes.last());
        }
        auto *const root = static_cast<Entity *>(nodes.first()->parent());
        for (int i = 0; i < 15; ++i) {
            for (const char *const layer : {"l1", "l2"}) {
                for (const char *const id : {"a", "b", "c"}) {
                    const QModelIndex found = findCamera(layer, id);
                    QCOMPARE(found, m_model->getModelIndexForCameraId(root, layer, id, 0));
                    ++(found.isValid() ? hits : misses);
                }
            }
            nodes.removeAll(nullptr);
            if (!nodes.isEmpty())
                change(pick(nodes), pick(nodes));
        }
    }
    QVERIFY(hits > 1000);
    QVERIFY(misses > 1000);
}

void CFirmwareUpdateTreeModelTest::takesOverAFlatList()
{
    const QPointer<Entity> ticked(CUpdaterFixture::makeTickedCamera(m_b));
    ticked->setUpdateResult(Entity::EFirmwareUpdateResult::Failed);
    auto *const other = CUpdaterFixture::makeTickedCamera(m_a);
    other->setSelected(false);
    m_model->setCameraDeviceList({ticked, other});

    QCOMPARE(columnTexts(*m_model, {}, 1), QStringList({"b", "a"}));
    // There are no layers to look into.
    QCOMPARE(m_model->getModelIndexForCameraId("elsewhere", "a", 7), m_model->index(1, 7));
    QVERIFY(!m_model->data(m_model->index(1, 1), Qt::ToolTipRole).isValid());
    QCOMPARE(m_model->index(0, 7).data().toInt(), 1);
    QCOMPARE(m_model->getSelectedCameraList(), QList<QPointer<Entity>>({ticked}));

    // A node of the old list does not survive it.
    m_model->setCameraDeviceList({ticked});
    QVERIFY(!ticked);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->hasSelectedCameras());
}

void CFirmwareUpdateTreeModelTest::copesWithIncompleteNodes()
{
    // Below the root: a camera with a camera, a node of each kind without infos, a dead node.
    QList<Entity *> nodes{CUpdaterFixture::makeTickedCamera(m_a)};
    nodes.first()->addChildEntity(CUpdaterFixture::makeTickedCamera(m_b));
    for (int type = 0; type < 3; ++type) {
        nodes.append(new Entity);
        nodes.last()->setEntityType(Entity::EFirmwareUpdateEntityType(type));
    }
    auto *const dead = new Entity;
    m_model->setCameraDeviceList(QList<Entity *>{nullptr, dead} + nodes);
    delete dead;

    QCOMPARE(m_model->rowCount(), 5);
    QVERIFY(!m_model->index(0, 0).isValid());
    const QModelIndex camera = m_model->index(1, 0);
    const QModelIndex inner = m_model->index(0, 0, camera);
    QVERIFY(!findCamera("l", "a").isValid());
    QCOMPARE(findCamera("l", "b"), inner);
    for (int row = 2; row < 5; ++row)
        for (int column : {0, 1, 3})
            QVERIFY(!m_model->index(row, column).data().isValid());

    QVector<QPair<int, QModelIndex>> announced;
    connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
            [&announced](const QModelIndex &index) {
                announced.append({index.row(), index.parent()});
            });
    const QVector<QPair<int, QModelIndex>> all{{1, {}}, {0, camera}, {2, {}}, {3, {}}, {4, {}}};
    m_model->updateModelIndices({}, {0});
    QCOMPARE(announced, all);

    // A node without a model spreads no tick and takes none.
    announced.clear();
    for (int row = 2; row < 5; ++row)
        m_model->updateAllNodesBySelection(m_model->index(row, 0));
    QVERIFY(announced.isEmpty());
    CUpdaterFixture::tick(*m_model, camera, false);
    CUpdaterFixture::tick(*m_model, inner, false);
    QVERIFY(m_model->getSelectedCameraList().isEmpty());
    for (const Entity *const node : qAsConst(nodes))
        QVERIFY(node->isEnabled());

    int failed = 0;
    int successful = 0;
    int skipped = 0;
    m_model->getModelStatistics(failed, successful, skipped);
    QCOMPARE(skipped, 2);
}

void CFirmwareUpdateTreeModelTest::copesWithIncompleteEnumerations()
{
    const auto layer = [](const TestSupport::CFakeTransportLayerInfo::Cameras &cameras) {
        return Plugin::CameraPool::TransportLayerInfoPtr(
            new TestSupport::CFakeTransportLayerInfo("l", cameras));
    };
    m_model->setTransportLayerInfoVector(
        {{}, layer({{}}), layer({TestSupport::makeCamera(m_a), {}})});
    QCOMPARE(m_model->rowCount(), 1);
    const QModelIndex group = m_model->index(0, 0, m_model->index(0, 0));
    QCOMPARE(columnTexts(*m_model, group), QStringList({"Camera a"}));
}

void CFirmwareUpdateTreeModelTest::announcesRowsParentsFirst()
{
    m_model->setTransportLayerInfoVector({makeLayer("l1", {m_a, m_b}), makeLayer("l2", {m_n})});
    QStringList announced;
    connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
            [&announced](const QModelIndex &topLeft, const QModelIndex &bottomRight,
                         const QVector<int> &roles) {
                QCOMPARE(topLeft, bottomRight);
                QCOMPARE(topLeft.column(), 0);
                QCOMPARE(roles, QVector<int>({0, 8}));
                announced.append(topLeft.data().toString());
            });
    m_model->updateModelIndices({}, {0, 8});
    QCOMPARE(announced,
             QStringList({"Layer l1", "M", "Camera b", "Camera a", "Layer l2", "N", "Camera n"}));

    announced.clear();
    m_model->updateModelIndices(m_model->index(1, 0), {0, 8});
    QCOMPARE(announced, QStringList({"Layer l2", "N", "Camera n"}));
}

void CFirmwareUpdateTreeModelTest::writesEditableColumns()
{
    m_model->setCameraDeviceList({CUpdaterFixture::makeTickedCamera(m_a)});
    QSignalSpy spy(m_model.get(), &QAbstractItemModel::dataChanged);
    // Whether a value is taken, and what the cell shows then.
    const auto write = [&](int column, const QVariant &value, int role = Qt::EditRole) {
        spy.clear();
        const QModelIndex index = m_model->index(0, column);
        const bool isTaken = m_model->setData(index, value, role);
        // An equal value is announced as well.
        m_model->setData(index, value, role);
        bool isTold = spy.count() == (isTaken ? 2 : 0);
        for (const QVariantList &told : qAsConst(spy))
            isTold &= told.at(0) == index && told.at(1) == index
                && told.at(2).value<QVector<int>>() == QVector<int>{column};
        return QString(isTold ? "" : "told wrongly ") + (isTaken ? "takes " : "keeps ")
            + index.data().toString();
    };
    // The name's column takes the tick but goes on showing the name.
    QCOMPARE(write(0, false), "takes Camera a");
    QCOMPARE(m_model->index(0, 2).data(), false);
    QCOMPARE(write(1, "x"), "keeps a");
    QCOMPARE(write(2, true), "takes true");
    QCOMPARE(write(3, "x"), "keeps 1.0.0");
    QCOMPARE(write(4, "2"), "takes 2");
    QCOMPARE(write(5, 1), "keeps 3");
    QCOMPARE(write(6, 2), "takes Complete");
    QCOMPARE(write(7, 0), "takes OK");
    QCOMPARE(write(2, false, Qt::DisplayRole), "keeps true");
    QCOMPARE(write(0, Qt::Unchecked, Qt::CheckStateRole), "keeps Camera a");
    QVERIFY(m_model->hasSelectedCameras());
    QVERIFY(!m_model->setData({}, true, Qt::EditRole));
}

void CFirmwareUpdateTreeModelTest::isAProperItemModel()
{
    const QAbstractItemModelTester tester(m_model.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_model->setTransportLayerInfoVector({makeLayer("l1", {m_a, m_b}), makeLayer("l2", {m_n})});
    CUpdaterFixture::tick(*m_model, findCamera("l1", "a"));
    m_model->setTransportLayerInfoVector({makeLayer("l3", {m_c})});
    m_model->setCameraDeviceList(
        {CUpdaterFixture::makeTickedCamera(m_a), CUpdaterFixture::makeTickedCamera(m_b)});
    m_model->setCameraDeviceList({});
}

QTEST_GUILESS_MAIN(CFirmwareUpdateTreeModelTest)
#include "tst_firmwareupdatetreemodel.moc"
