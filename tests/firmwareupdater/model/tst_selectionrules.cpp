#include "model/firmwareupdatetreemodel.h"
#include "support/fakeinfos.h"

#include <QSignalSpy>
#include <QtTest>

using Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity;
using Plugin::FirmwareUpdater::Internal::Model::CFirmwareUpdateTreeModel;
using TestSupport::makeLayer;
using Result = CFirmwareUpdateEntity::EFirmwareUpdateResult;

/// What ticking and unticking does in a tree with model M on two layers and model N on one:
/// layer l1: M (a2, a1), N (n1); layer l2: M (b1).
class CSelectionRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void spreadsTicks_data();
    void spreadsTicks();
    void announcesASpreadOnce();
    void listsTickedCamerasById();
    void countsResults();

private:
    /// "group:<layer>/<model>" or "<layer>/<camera id>"
    [[nodiscard]] QModelIndex find(const QString &name) const;
    void tick(const QString &name, bool on);
    [[nodiscard]] QStringList collect(bool (CFirmwareUpdateEntity::*getter)() const,
                                      bool value) const;
    [[nodiscard]] QStringList tickedIds() const;

    std::unique_ptr<CFirmwareUpdateTreeModel> m_model;
};

void CSelectionRulesTest::init()
{
    const QString m = QStringLiteral("M");
    m_model = std::make_unique<CFirmwareUpdateTreeModel>(nullptr);
    m_model->setTransportLayerInfoVector(
        {makeLayer(QStringLiteral("l1"),
                   {{QStringLiteral("a1"), m},
                    {QStringLiteral("n1"), QStringLiteral("N")},
                    {QStringLiteral("a2"), m}}),
         makeLayer(QStringLiteral("l2"), {{QStringLiteral("b1"), m}})});
}

QModelIndex CSelectionRulesTest::find(const QString &name) const
{
    const QStringList parts = name.section(QLatin1Char(':'), -1).split(QLatin1Char('/'));
    if (!name.startsWith(QLatin1String("group:")))
        return m_model->getModelIndexForCameraId(parts.at(0), parts.at(1), 0);

    for (int layer = 0; layer < m_model->rowCount(); ++layer) {
        const QModelIndex layerIndex = m_model->index(layer, 0);
        if (m_model->index(layer, 1).data().toString() != parts.at(0))
            continue;
        for (int row = 0; row < m_model->rowCount(layerIndex); ++row) {
            const QModelIndex group = m_model->index(row, 0, layerIndex);
            if (group.data().toString() == parts.at(1))
                return group;
        }
    }
    return {};
}

void CSelectionRulesTest::tick(const QString &name, bool on)
{
    const QModelIndex index = find(name);
    QVERIFY2(index.isValid(), qPrintable(name));
    QVERIFY(m_model->setData(index, on, Qt::EditRole));
    m_model->updateAllNodesBySelection(index);
}

QStringList CSelectionRulesTest::collect(bool (CFirmwareUpdateEntity::*getter)() const,
                                         bool value) const
{
    QStringList names;
    for (int layer = 0; layer < m_model->rowCount(); ++layer) {
        const QModelIndex layerIndex = m_model->index(layer, 0);
        const QString layerId = m_model->index(layer, 1).data().toString();
        for (int group = 0; group < m_model->rowCount(layerIndex); ++group) {
            const QModelIndex groupIndex = m_model->index(group, 0, layerIndex);
            const auto add = [&](const QModelIndex &index, const QString &name) {
                const auto *const node
                    = static_cast<const CFirmwareUpdateEntity *>(index.internalPointer());
                if ((node->*getter)() == value)
                    names.append(name);
            };
            add(groupIndex,
                QStringLiteral("group:%1/%2").arg(layerId, groupIndex.data().toString()));
            for (int row = 0; row < m_model->rowCount(groupIndex); ++row) {
                const QModelIndex camera = m_model->index(row, 1, groupIndex);
                add(camera, layerId + QLatin1Char('/') + camera.data().toString());
            }
        }
    }
    names.sort();
    return names;
}

QStringList CSelectionRulesTest::tickedIds() const
{
    QStringList ids;
    for (const QPointer<CFirmwareUpdateEntity> &camera : m_model->getSelectedCameraList())
        ids.append(camera ? camera->getCameraInfo()->getId() : QStringLiteral("null"));
    return ids;
}

void CSelectionRulesTest::spreadsTicks_data()
{
    QTest::addColumn<QStringList>("clicks"); // "+name" ticks, "-name" unticks
    QTest::addColumn<QStringList>("ticked");
    QTest::addColumn<QStringList>("disabled");

    const QStringList allM = {"group:l1/M", "group:l2/M", "l1/a1", "l1/a2", "l2/b1"};
    const QStringList allN = {"group:l1/N", "l1/n1"};
    QTest::newRow("a group takes its model on all layers")
        << QStringList({"+group:l1/M"}) << allM << allN;
    QTest::newRow("unticking the group on another layer frees all")
        << QStringList({"+group:l1/M", "-group:l2/M"}) << QStringList() << QStringList();
    QTest::newRow("a camera takes its own group only")
        << QStringList({"+l1/a1"}) << QStringList({"group:l1/M", "l1/a1"}) << allN;
    QTest::newRow("a second camera of the group changes nothing else")
        << QStringList({"+l1/a1", "+l1/a2"}) << QStringList({"group:l1/M", "l1/a1", "l1/a2"})
        << allN;
    QTest::newRow("the group stays while one camera is ticked")
        << QStringList({"+l1/a1", "+l1/a2", "-l1/a1"}) << QStringList({"group:l1/M", "l1/a2"})
        << allN;
    QTest::newRow("the last camera frees its group and the other models")
        << QStringList({"+l1/a1", "+l1/a2", "-l1/a1", "-l1/a2"}) << QStringList() << QStringList();
    QTest::newRow("the last camera of a group frees other models despite a tick elsewhere")
        << QStringList({"+l1/a1", "+l2/b1", "-l1/a1"}) << QStringList({"group:l2/M", "l2/b1"})
        << QStringList();
    QTest::newRow("another model on one layer")
        << QStringList({"+l1/n1"}) << QStringList({"group:l1/N", "l1/n1"}) << allM;
}

void CSelectionRulesTest::spreadsTicks()
{
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, ticked);
    QFETCH(QStringList, disabled);

    for (const QString &click : qAsConst(clicks))
        tick(click.mid(1), click.startsWith(QLatin1Char('+')));

    QCOMPARE(collect(&CFirmwareUpdateEntity::isSelected, true), ticked);
    QCOMPARE(collect(&CFirmwareUpdateEntity::isEnabled, false), disabled);
    QStringList ids;
    for (const QString &name : qAsConst(ticked)) {
        if (!name.startsWith(QLatin1String("group:")))
            ids.append(name.section(QLatin1Char('/'), 1));
    }
    QCOMPARE(tickedIds(), ids);
}

void CSelectionRulesTest::announcesASpreadOnce()
{
    constexpr int rowCount = 9;
    QSignalSpy spy(m_model.get(), &QAbstractItemModel::dataChanged);
    const auto lastRoles = [&spy] { return spy.last().at(2).value<QVector<int>>(); };

    tick(QStringLiteral("l1/a1"), true);
    QCOMPARE(spy.count(), 1 + rowCount);
    QCOMPARE(lastRoles(), QVector<int>({0, 8}));

    spy.clear();
    tick(QStringLiteral("l1/a2"), true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(lastRoles(), QVector<int>({0}));

    spy.clear();
    tick(QStringLiteral("group:l1/M"), true);
    QCOMPARE(spy.count(), 1 + rowCount);
    QCOMPARE(lastRoles(), QVector<int>({0, 8, 2}));

    spy.clear();
    m_model->updateAllNodesBySelection(m_model->index(0, 0));
    m_model->updateAllNodesBySelection({});
    QCOMPARE(spy.count(), 0);
}

void CSelectionRulesTest::listsTickedCamerasById()
{
    tick(QStringLiteral("l2/b1"), true);
    tick(QStringLiteral("l1/a2"), true);
    tick(QStringLiteral("l1/a1"), true);
    QCOMPARE(tickedIds(), QStringList({"a1", "a2", "b1"}));

    m_model->clearSelectedCamerasMap();
    QVERIFY(!m_model->hasSelectedCameras());
    QCOMPARE(collect(&CFirmwareUpdateEntity::isSelected, true).size(), 5);
}

void CSelectionRulesTest::countsResults()
{
    const auto setResult = [this](const char *name, Result result) {
        const QModelIndex index = find(QLatin1String(name));
        m_model->setData(index.sibling(index.row(), 7), static_cast<int>(result), Qt::EditRole);
    };
    setResult("l1/a1", Result::OK);
    setResult("l1/a2", Result::OK);
    setResult("l2/b1", Result::Failed);

    // The counters are added to, and a group never counts.
    int failed = 10;
    int successful = 0;
    int skipped = 0;
    setResult("group:l1/M", Result::Failed);
    m_model->getModelStatistics(failed, successful, skipped);
    QCOMPARE(failed, 11);
    QCOMPARE(successful, 2);
    QCOMPARE(skipped, 1);

    const QModelIndex index = find(QStringLiteral("l1/n1"));
    m_model->setData(index.sibling(index.row(), 7), 9, Qt::EditRole);
    m_model->getModelStatistics(failed, successful, skipped);
    QCOMPARE(skipped, 1);
}

QTEST_GUILESS_MAIN(CSelectionRulesTest)
#include "tst_selectionrules.moc"
