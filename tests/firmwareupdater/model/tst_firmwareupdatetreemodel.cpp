#include "support/updaterfixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

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
    void findsCamerasWhoseNodesChanged();
    void takesOverAFlatList();
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

void CFirmwareUpdateTreeModelTest::findsCamerasWhoseNodesChanged()
{
    m_model->setTransportLayerInfoVector({makeLayer("l", {m_a, m_b})});
    const QModelIndex index = findCamera("l", "a");
    static_cast<Entity *>(index.internalPointer())
        ->setCameraInfo(TestSupport::makeCamera({"renamed"}));
    QVERIFY(!findCamera("l", "a").isValid());
    QCOMPARE(findCamera("l", "renamed"), index);

    delete static_cast<Entity *>(findCamera("l", "b").internalPointer());
    QVERIFY(!findCamera("l", "b").isValid());
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

    m_model->setCameraDeviceList({});
    QVERIFY(!ticked);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->hasSelectedCameras());
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
