#include "updatefilebuilder.h"
#include "viewer/camerapool/updatefile/manifestparser.h"

#include <QtTest>

using namespace Viewer::CameraPool::UpdateFile;

/// That every field is read is seen by the test of guftool, which shows them all.
class CManifestParserTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsFaults_data();
    void tellsFaults();
};

void CManifestParserTest::tellsFaults_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("fault");

    const QByteArray manifest
        = Test::CUpdateFileBuilder::makeManifest("fw/image.bin", QByteArray("firmware"));
    const auto change = [&manifest](const QByteArray &before, const QByteArray &after) {
        if (!manifest.contains(before))
            qFatal("The manifest does not hold %s", before.constData());
        return QByteArray(manifest).replace(manifest.indexOf(before), before.size(), after);
    };
    QFile file(FAULTS_PATH);
    QVERIFY(file.open(QIODevice::ReadOnly));
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().chopped(1);
        const QStringList row = QString(line + ' ').split(" => ");
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        QCOMPARE(row.size(), 3);
        const QByteArray after = row.at(1).toUtf8().replace("@long@", QByteArray(20000, 'x'));
        QTest::newRow(line.left(200).constData())
            << (row.at(0).isEmpty() ? after : change(row.at(0).toUtf8(), after))
            << row.at(2).trimmed();
    }

    const auto row = [](const QByteArray &json, const QString &fault) {
        QTest::newRow(qPrintable(fault)) << json << fault;
    };
    const auto repeat = [](const char *item, int count) {
        return '[' + (QByteArray(item) + ',').repeated(count - 1) + item;
    };
    row(" \n", "update.json is empty");
    row("{ \"a\": \"\xff\" }",
        "update.json is not JSON at line 1, column 8: the text is not valid UTF-8");
    row(QByteArray(200000, '['),
        "update.json is nested more than 16 levels deep at line 1, column 17");
    row(QByteArray(manifest).leftJustified(1024 * 1024 + 1, ' '),
        "update.json has 1048577 bytes; 1048576 are allowed");
    row("{\"formatVersion\": 1, \"updates\": " + repeat("{}", 33) + "]}",
        R"(update.json: the field "updates" has 33 items; 32 are allowed)");
    row(change("\"steps\": [",
               "\"steps\": " + repeat(R"({"kind": "DeviceReset", "estimatedMs": 1})", 65) + ','),
        R"(update.json: the field "updates[0].steps" has 72 items; 64 are allowed)");
    row(change("[{ \"feature", repeat(R"({"feature": "A", "value": "1"})", 32) + ", { \"feature"),
        R"(update.json: the field "updates[0].steps[0].preconditions" has 33 items; 32 are allowed)");
}

void CManifestParserTest::tellsFaults()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, fault);
    const CManifestResult result = parseManifest(json);
    QCOMPARE(result.fault, fault);
    QCOMPARE(result.manifest.updates.isEmpty(), !fault.isEmpty());
}

QTEST_GUILESS_MAIN(CManifestParserTest)
#include "tst_manifestparser.moc"
