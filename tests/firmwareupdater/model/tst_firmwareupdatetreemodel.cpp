#include "model/firmwareupdatetreemodel.h"
#include "support/fakeinfos.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity;
using Plugin::FirmwareUpdater::Internal::Model::CFirmwareUpdateTreeModel;
using TestSupport::makeLayer;
using EntityType = CFirmwareUpdateEntity::EFirmwareUpdateEntityType;

namespace {

CFirmwareUpdateEntity *makeCameraNode(const TestSupport::CCameraDescription &description)
{
    auto *const node = new CFirmwareUpdateEntity;
    node->setEntityType(EntityType::CameraDevice);
    node->setCameraInfo(TestSupport::makeCamera(description));
    return node;
}

QStringList columnTexts(const QAbstractItemModel &model, const QModelIndex &parent, int column = 0)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row)
        texts.append(model.index(row, column, parent).data().toString());
    return texts;
}

} // namespace

class CFirmwareUpdateTreeModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void namesItsSections();
    void buildsLayersGroupsAndCameras();
    void leavesOutLayersWithoutCameras();
    void allowsEditingOfCheckBoxesOnly();
    void findsCamerasById_data();
    void findsCamerasById();
    void findsCamerasWhoseNodesChanged();
    void takesOverAFlatList();
    void announcesRowsParentsFirst();
    void writesEditableColumns_data();
    void writesEditableColumns();
    void isAProperItemModel();

private:
    const TestSupport::CCameraDescription m_a{QStringLiteral("a"), QStringLiteral("M")};
    const TestSupport::CCameraDescription m_b{QStringLiteral("b"), QStringLiteral("M")};
    const TestSupport::CCameraDescription m_c{QStringLiteral("c"), QStringLiteral("M")};
    const TestSupport::CCameraDescription m_n{QStringLiteral("n"), QStringLiteral("N")};
    std::unique_ptr<CFirmwareUpdateTreeModel> m_model;
};

void CFirmwareUpdateTreeModelTest::init()
{
    m_model = std::make_unique<CFirmwareUpdateTreeModel>(nullptr);
}

void CFirmwareUpdateTreeModelTest::namesItsSections()
{
    const QStringList titles
        = {"Cameras", "Id",      "SelectionStatus", "Current Firmware", "Firmware Selected",
           "Details", "Details", "Details",         "Enabled"};
    for (int section = 0; section < titles.size(); ++section)
        QCOMPARE(m_model->headerData(section, Qt::Horizontal, Qt::DisplayRole), titles.at(section));
    QVERIFY(!m_model->headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!m_model->headerData(9, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    QVERIFY(!m_model->headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
}

void CFirmwareUpdateTreeModelTest::buildsLayersGroupsAndCameras()
{
    QSignalSpy resetSpy(m_model.get(), &QAbstractItemModel::modelReset);
    m_model->setTransportLayerInfoVector({makeLayer(QStringLiteral("l"), {m_a, m_n, m_b, m_c})});
    QCOMPARE(resetSpy.count(), 1);

    const QModelIndex layer = m_model->index(0, 0);
    QCOMPARE(layer.data().toString(), QStringLiteral("Layer l"));
    QVERIFY(!layer.parent().isValid());
    QCOMPARE(columnTexts(*m_model, layer), QStringList({"M", "N"}));

    // The last found camera comes first and stands for the group.
    const QModelIndex group = m_model->index(0, 0, layer);
    QCOMPARE(columnTexts(*m_model, group, 1), QStringList({"c", "b", "a"}));
    QCOMPARE(m_model->index(0, 1, layer).data().toString(), QStringLiteral("c"));
    QCOMPARE(m_model->index(2, 0, group).parent(), group);
    QCOMPARE(m_model->rowCount(m_model->index(0, 1, layer)), 0);
}

void CFirmwareUpdateTreeModelTest::leavesOutLayersWithoutCameras()
{
    m_model->setTransportLayerInfoVector(
        {makeLayer(QStringLiteral("empty"), {}), makeLayer(QStringLiteral("l"), {m_a})});
    QCOMPARE(columnTexts(*m_model, {}), QStringList({"Layer l"}));
    m_model->setTransportLayerInfoVector({makeLayer(QStringLiteral("empty"), {})});
    QCOMPARE(m_model->rowCount(), 0);
}

void CFirmwareUpdateTreeModelTest::allowsEditingOfCheckBoxesOnly()
{
    m_model->setTransportLayerInfoVector({makeLayer(QStringLiteral("l"), {m_a})});
    const QModelIndex layer = m_model->index(0, 0);
    const QModelIndex group = m_model->index(0, 0, layer);
    const Qt::ItemFlags base = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(m_model->flags({}), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(m_model->flags(layer), base);
    QCOMPARE(m_model->flags(group), base | Qt::ItemIsEditable);
    QCOMPARE(m_model->flags(m_model->index(0, 0, group)), base | Qt::ItemIsEditable);
    QCOMPARE(m_model->flags(m_model->index(0, 2, group)), base);
}

void CFirmwareUpdateTreeModelTest::findsCamerasById_data()
{
    QTest::addColumn<QString>("layerId");
    QTest::addColumn<QString>("cameraId");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("layerRow");

    QTest::newRow("on its layer") << "l1"
                                  << "a" << 2 << 0;
    QTest::newRow("same id on another layer") << "l2"
                                              << "a" << 0 << 1;
    QTest::newRow("on the wrong layer") << "l1"
                                        << "b" << 0 << -1;
    QTest::newRow("other letter case") << "l1"
                                       << "A" << 0 << -1;
    QTest::newRow("unknown id") << "l1"
                                << "x" << 0 << -1;
    QTest::newRow("negative column") << "l1"
                                     << "a" << -1 << -1;
    QTest::newRow("column too large") << "l1"
                                      << "a" << 8 << -1;
}

void CFirmwareUpdateTreeModelTest::findsCamerasById()
{
    QFETCH(QString, layerId);
    QFETCH(QString, cameraId);
    QFETCH(int, column);
    QFETCH(int, layerRow);

    m_model->setTransportLayerInfoVector(
        {makeLayer(QStringLiteral("l1"), {m_a, m_n}), makeLayer(QStringLiteral("l2"), {m_a, m_b})});
    const QModelIndex found = m_model->getModelIndexForCameraId(layerId, cameraId, column);
    QCOMPARE(found.isValid(), layerRow >= 0);
    if (layerRow >= 0) {
        QCOMPARE(found.column(), column);
        QCOMPARE(found.sibling(found.row(), 1).data().toString(), cameraId);
        QCOMPARE(found.parent().parent().row(), layerRow);
    }
}

void CFirmwareUpdateTreeModelTest::findsCamerasWhoseNodesChanged()
{
    m_model->setTransportLayerInfoVector({makeLayer(QStringLiteral("l"), {m_a, m_b})});
    const QModelIndex index
        = m_model->getModelIndexForCameraId(QStringLiteral("l"), QStringLiteral("a"), 0);
    auto *const node = static_cast<CFirmwareUpdateEntity *>(index.internalPointer());
    node->setCameraInfo(TestSupport::makeCamera({QStringLiteral("renamed")}));
    QVERIFY(
        !m_model->getModelIndexForCameraId(QStringLiteral("l"), QStringLiteral("a"), 0).isValid());
    QCOMPARE(m_model->getModelIndexForCameraId(QStringLiteral("l"), QStringLiteral("renamed"), 0),
             index);

    delete static_cast<CFirmwareUpdateEntity *>(
        m_model->getModelIndexForCameraId(QStringLiteral("l"), QStringLiteral("b"), 0)
            .internalPointer());
    QVERIFY(
        !m_model->getModelIndexForCameraId(QStringLiteral("l"), QStringLiteral("b"), 0).isValid());
}

void CFirmwareUpdateTreeModelTest::takesOverAFlatList()
{
    const QPointer<CFirmwareUpdateEntity> ticked(makeCameraNode(m_b));
    ticked->setSelected(true);
    ticked->setUpdateResult(CFirmwareUpdateEntity::EFirmwareUpdateResult::Failed);
    m_model->setCameraDeviceList({ticked, makeCameraNode(m_a)});

    QCOMPARE(columnTexts(*m_model, {}, 1), QStringList({"b", "a"}));
    // There are no layers to look into.
    QCOMPARE(m_model->getModelIndexForCameraId("elsewhere", "a", 7), m_model->index(1, 7));
    QVERIFY(!m_model->data(m_model->index(1, 1), Qt::ToolTipRole).isValid());
    QCOMPARE(m_model->index(0, 7).data().toInt(), 1);
    QCOMPARE(m_model->getSelectedCameraList(), QList<QPointer<CFirmwareUpdateEntity>>({ticked}));

    m_model->setCameraDeviceList({});
    QVERIFY(!ticked);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->hasSelectedCameras());
}

void CFirmwareUpdateTreeModelTest::announcesRowsParentsFirst()
{
    m_model->setTransportLayerInfoVector(
        {makeLayer(QStringLiteral("l1"), {m_a, m_b}), makeLayer(QStringLiteral("l2"), {m_n})});
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

void CFirmwareUpdateTreeModelTest::writesEditableColumns_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");

    const int edit = Qt::EditRole;
    QTest::newRow("tick in the name's column") << 0 << edit << QVariant(true) << true;
    QTest::newRow("id") << 1 << edit << QVariant(QStringLiteral("x")) << false;
    QTest::newRow("tick") << 2 << edit << QVariant(true) << true;
    QTest::newRow("current firmware") << 3 << edit << QVariant(QStringLiteral("x")) << false;
    QTest::newRow("selected firmware") << 4 << edit << QVariant(QStringLiteral("2")) << true;
    QTest::newRow("details") << 5 << edit << QVariant(1) << false;
    QTest::newRow("status") << 6 << edit << QVariant(2) << true;
    QTest::newRow("result") << 7 << edit << QVariant(0) << true;
    QTest::newRow("display role") << 0 << int(Qt::DisplayRole) << QVariant(true) << false;
    QTest::newRow("check state role")
        << 0 << int(Qt::CheckStateRole) << QVariant(Qt::Checked) << false;
}

void CFirmwareUpdateTreeModelTest::writesEditableColumns()
{
    QFETCH(int, column);
    QFETCH(int, role);
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);

    m_model->setCameraDeviceList({makeCameraNode(m_a)});
    const QModelIndex index = m_model->index(0, column);
    const QVariant before = index.data();
    QSignalSpy spy(m_model.get(), &QAbstractItemModel::dataChanged);

    QCOMPARE(m_model->setData(index, value, role), accepted);
    QCOMPARE(spy.count(), accepted ? 1 : 0);
    if (!accepted) {
        QCOMPARE(index.data(), before);
        QVERIFY(!m_model->hasSelectedCameras());
        return;
    }
    QCOMPARE(spy.first().at(0).toModelIndex(), index);
    QCOMPARE(spy.first().at(2).value<QVector<int>>(), QVector<int>({column}));
    // The name's column takes the tick but goes on showing the name.
    const QModelIndex written = column == 0 ? index.sibling(0, 2) : index;
    if (value.type() == QVariant::Int)
        QCOMPARE(written.data().toInt(), value.toInt());
    else
        QCOMPARE(written.data().toString(), value.toString());

    // An equal value is announced as well.
    QVERIFY(m_model->setData(index, value, role));
    QCOMPARE(spy.count(), 2);
    QVERIFY(!m_model->setData({}, value, role));
}

void CFirmwareUpdateTreeModelTest::isAProperItemModel()
{
    const QAbstractItemModelTester tester(m_model.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_model->setTransportLayerInfoVector(
        {makeLayer(QStringLiteral("l1"), {m_a, m_b}), makeLayer(QStringLiteral("l2"), {m_n})});
    const QModelIndex camera
        = m_model->getModelIndexForCameraId(QStringLiteral("l1"), QStringLiteral("a"), 0);
    m_model->setData(camera, true, Qt::EditRole);
    m_model->updateAllNodesBySelection(camera);
    m_model->setTransportLayerInfoVector({makeLayer(QStringLiteral("l3"), {m_c})});
    m_model->setCameraDeviceList({makeCameraNode(m_a), makeCameraNode(m_b)});
    m_model->setCameraDeviceList({});
}

QTEST_GUILESS_MAIN(CFirmwareUpdateTreeModelTest)
#include "tst_firmwareupdatetreemodel.moc"
