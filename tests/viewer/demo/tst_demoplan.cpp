#include "support/fakehost.h"
#include "viewer/demo/demoplan.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;
using Viewer::Demo::CDemoPlan;

class CDemoPlanTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void prefersTheKnownModel();
    void elseTakesTheModelWithMostCameras();
    void leavesOutCamerasThatCannotBeUpdated();
    void saysWhenNoFileFits_data();
    void saysWhenNoFileFits();

private:
    CDemoPlan create();

    CFakeEnumerationService m_enumeration;
    CFakeUpdateService m_updates;
    QTemporaryDir m_samples;
    QString m_error;
};

void CDemoPlanTest::init()
{
    m_error.clear();
    m_updates.readError.clear();
    m_updates.incompatibleIds.clear();
    m_updates.entries = {QSharedPointer<CFakeUpdateInfo>::create("2.0.0")};
    QFile file(m_samples.filePath("sample.guf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

CDemoPlan CDemoPlanTest::create()
{
    return CDemoPlan::create(m_enumeration, m_updates, m_samples.path(), m_error);
}

void CDemoPlanTest::prefersTheKnownModel()
{
    m_enumeration.layers = {makeLayer("1", {{"a", "VX-9"}, {"b", "VX-9"}, {"c", "VX-1400M"}}),
                            makeLayer("2", {{"d", "VX-1400M"}, {"e", "VX-9"}})};
    const CDemoPlan plan = create();
    QCOMPARE(plan.modelName, "VX-1400M");
    QCOMPARE(plan.cameras.size(), 2);
    QCOMPARE(plan.targetVersion, "2.0.0");
    QCOMPARE(plan.updateFile, m_samples.filePath("sample.guf"));
}

void CDemoPlanTest::elseTakesTheModelWithMostCameras()
{
    m_enumeration.layers = {makeLayer("1", {{"a", "A"}, {"b", "B"}, {"c", "B"}, {"d", "C"}})};
    QCOMPARE(create().modelName, "B");
    m_updates.incompatibleIds = {"c"};
    QCOMPARE(create().modelName, "A");
}

void CDemoPlanTest::leavesOutCamerasThatCannotBeUpdated()
{
    m_enumeration.layers = {makeLayer("1", {{"a", "A"}, {"b", "A", {}, "1.0.0", 3}})};
    const CDemoPlan plan = create();
    QCOMPARE(plan.cameras.size(), 1);
    QCOMPARE(plan.cameras.constFirst()->getId(), "a");
}

void CDemoPlanTest::saysWhenNoFileFits_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("no cameras") << "cameras";
    QTest::newRow("incompatible") << "incompatible";
    QTest::newRow("unreadable file") << "unreadable";
    QTest::newRow("no files") << "files";
}

void CDemoPlanTest::saysWhenNoFileFits()
{
    QFETCH(const QString, fault);
    m_enumeration.layers.clear();
    if (fault != "cameras")
        m_enumeration.layers = {makeLayer("1", {{"a", "A"}})};
    if (fault == "incompatible")
        m_updates.incompatibleIds = {"a"};
    if (fault == "unreadable")
        m_updates.readError = "The file is damaged.";
    if (fault == "files")
        QVERIFY(QFile::remove(m_samples.filePath("sample.guf")));
    QVERIFY(create().cameras.isEmpty());
    QVERIFY2(m_error.contains(m_samples.path()), qPrintable(m_error));
}

QTEST_GUILESS_MAIN(CDemoPlanTest)

#include "tst_demoplan.moc"
