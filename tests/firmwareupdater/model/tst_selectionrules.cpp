#include "support/updaterfixture.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

using TestSupport::CUpdaterFixture;
using TestSupport::makeLayer;
using Entity = CUpdaterFixture::Entity;

/// What ticking and unticking does in a tree with model M on two layers and model N on one:
/// layer l1: M (a2, a1), N (n1); layer l2: M (b1).
class CSelectionRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void spreadsTicks();
    void announcesASpreadOnce();
    void listsTickedCamerasById();
    void countsResults();

private:
    /// All groups and cameras as "group:<layer>/<model>" and "<layer>/<camera id>".
    [[nodiscard]] QMap<QString, QModelIndex> getRows() const;
    void tick(const QString &name, bool on);
    /// The names of the groups and cameras whose @p getter says @p value, in order.
    [[nodiscard]] QStringList collect(bool (Entity::*getter)() const, bool value) const;
    [[nodiscard]] QStringList tickedIds() const;

    std::unique_ptr<CUpdaterFixture::Model> m_model;
};

void CSelectionRulesTest::init()
{
    m_model = std::make_unique<CUpdaterFixture::Model>(nullptr);
    m_model->setTransportLayerInfoVector(
        {makeLayer("l1", {{"a1", "M"}, {"n1", "N"}, {"a2", "M"}}), makeLayer("l2", {{"b1", "M"}})});
}

QMap<QString, QModelIndex> CSelectionRulesTest::getRows() const
{
    QMap<QString, QModelIndex> rows;
    for (int l = 0; l < m_model->rowCount(); ++l) {
        const QModelIndex layer = m_model->index(l, 0);
        const QString prefix = layer.siblingAtColumn(1).data().toString() + '/';
        for (int g = 0; g < m_model->rowCount(layer); ++g) {
            const QModelIndex group = m_model->index(g, 0, layer);
            rows.insert("group:" + prefix + group.data().toString(), group);
            for (int c = 0; c < m_model->rowCount(group); ++c)
                rows.insert(prefix + m_model->index(c, 1, group).data().toString(),
                            m_model->index(c, 0, group));
        }
    }
    return rows;
}

void CSelectionRulesTest::tick(const QString &name, bool on)
{
    QVERIFY2(getRows().contains(name), qPrintable(name));
    CUpdaterFixture::tick(*m_model, getRows().value(name), on);
}

QStringList CSelectionRulesTest::collect(bool (Entity::*getter)() const, bool value) const
{
    QStringList names;
    const QMap<QString, QModelIndex> rows = getRows();
    for (auto row = rows.cbegin(); row != rows.cend(); ++row)
        if ((static_cast<const Entity *>(row->internalPointer())->*getter)() == value)
            names.append(row.key());
    return names;
}

QStringList CSelectionRulesTest::tickedIds() const
{
    QStringList ids;
    for (const auto &camera : m_model->getSelectedCameraList())
        ids.append(camera ? camera->getCameraInfo()->getId() : "null");
    return ids;
}

void CSelectionRulesTest::spreadsTicks()
{
    // What is ticked and what cannot be ticked after clicks: "+name" ticks, "-name" unticks.
    const auto click = [this](const QStringList &clicks) {
        init();
        for (const QString &click : clicks)
            tick(click.mid(1), click.startsWith('+'));
        const QStringList ticked = collect(&Entity::isSelected, true);
        QStringList ids = ticked.filter(QRegularExpression("^l"));
        ids.replaceInStrings(QRegularExpression(".*/"), "");
        return ticked.join(' ') + " | " + collect(&Entity::isEnabled, false).join(' ')
            + (ids == tickedIds() ? "" : ", but listed are " + tickedIds().join(' '));
    };
    const QString allM = "group:l1/M group:l2/M l1/a1 l1/a2 l2/b1";
    const QString allN = "group:l1/N l1/n1";
    // A group takes its model on all layers, and the one on another layer frees all.
    QCOMPARE(click({"+group:l1/M"}), allM + " | " + allN);
    QCOMPARE(click({"+group:l1/M", "-group:l2/M"}), " | ");
    // A camera takes its own group only. The last one frees it and the other models.
    QCOMPARE(click({"+l1/a1"}), "group:l1/M l1/a1 | " + allN);
    QCOMPARE(click({"+l1/a1", "+l1/a2"}), "group:l1/M l1/a1 l1/a2 | " + allN);
    QCOMPARE(click({"+l1/a1", "+l1/a2", "-l1/a1"}), "group:l1/M l1/a2 | " + allN);
    QCOMPARE(click({"+l1/a1", "+l1/a2", "-l1/a1", "-l1/a2"}), " | ");
    // It frees other models despite a tick elsewhere.
    QCOMPARE(click({"+l1/a1", "+l2/b1", "-l1/a1"}), "group:l2/M l2/b1 | ");
    QCOMPARE(click({"+l1/n1"}), "group:l1/N l1/n1 | " + allM);
}

void CSelectionRulesTest::announcesASpreadOnce()
{
    constexpr int ROW_COUNT = 9;
    QSignalSpy spy(m_model.get(), &QAbstractItemModel::dataChanged);
    const auto check = [&](const char *name, int count, const QVector<int> &roles) {
        tick(name, true);
        QCOMPARE(spy.count(), count);
        QCOMPARE(spy.last().at(2).value<QVector<int>>(), roles);
        spy.clear();
    };
    check("l1/a1", 1 + ROW_COUNT, {0, 8});
    check("l1/a2", 1, {0});
    check("group:l1/M", 1 + ROW_COUNT, {0, 8, 2});
    m_model->updateAllNodesBySelection(m_model->index(0, 0));
    m_model->updateAllNodesBySelection({});
    QCOMPARE(spy.count(), 0);
}

void CSelectionRulesTest::listsTickedCamerasById()
{
    tick("l2/b1", true);
    tick("l1/a2", true);
    tick("l1/a1", true);
    QCOMPARE(tickedIds(), QStringList({"a1", "a2", "b1"}));

    m_model->clearSelectedCamerasMap();
    QVERIFY(!m_model->hasSelectedCameras());
    QCOMPARE(collect(&Entity::isSelected, true).size(), 5);
}

void CSelectionRulesTest::countsResults()
{
    const auto setResult = [this](const char *name, int result) {
        m_model->setData(getRows().value(name).siblingAtColumn(7), result, Qt::EditRole);
    };
    setResult("l1/a1", 0);
    setResult("l1/a2", 0);
    setResult("l2/b1", 1);

    // The counters are added to, and a group never counts.
    int failed = 10;
    int successful = 0;
    int skipped = 0;
    setResult("group:l1/M", 1);
    m_model->getModelStatistics(failed, successful, skipped);
    QCOMPARE(failed, 11);
    QCOMPARE(successful, 2);
    QCOMPARE(skipped, 1);

    setResult("l1/n1", 9);
    m_model->getModelStatistics(failed, successful, skipped);
    QCOMPARE(skipped, 1);
}

QTEST_GUILESS_MAIN(CSelectionRulesTest)
#include "tst_selectionrules.moc"
