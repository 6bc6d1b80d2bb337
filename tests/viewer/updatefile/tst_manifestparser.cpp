#include "updatefilebuilder.h"
#include "viewer/updatefile/manifestparser.h"

#include <QtTest>

using namespace Viewer::UpdateFile;

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

    const QString manifest = TestSupport::makeManifest("fw/image.bin", QByteArray("firmware"));
    static const QRegularExpression repetition("@(\\d+) x (.*?)@");
    QFile file(FAULTS_PATH);
    QVERIFY(file.open(QIODevice::ReadOnly));
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine().chopped(1));
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QStringList row = (line + ' ').split(" => ");
        QCOMPARE(row.size(), 3);
        QVERIFY2(manifest.contains(row.at(0)), "The manifest does not hold what is replaced");
        QString after = row.at(1);
        for (auto i = repetition.globalMatch(row.at(1)); i.hasNext();) {
            const QRegularExpressionMatch match = i.next();
            after.replace(match.captured(), match.captured(2).repeated(match.captured(1).toInt()));
        }
        QString json = manifest;
        json.replace(row.at(0).isEmpty() ? 0 : json.indexOf(row.at(0)),
                     row.at(0).isEmpty() ? json.size() : row.at(0).size(), after);
        QTest::newRow(qPrintable(line)) << json.toUtf8() << row.at(2).trimmed();
    }
    QTest::newRow("not UTF-8")
        << QByteArray("{ \"a\": \"\xff\" }")
        << "update.json, line 1, column 8, field \"a\": the text is not valid UTF-8";
}

void CManifestParserTest::tellsFaults()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, fault);
    const CManifestResult result = parseManifest(json);
    QCOMPARE(result.fault.getEnglish(), fault);
    QCOMPARE(result.manifest.updates.isEmpty(), !fault.isEmpty());
}

QTEST_GUILESS_MAIN(CManifestParserTest)
#include "tst_manifestparser.moc"
