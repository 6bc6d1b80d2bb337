#include "updatefilebuilder.h"
#include "viewer/camerapool/updatefile/updatefilereader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Viewer::CameraPool::UpdateFile;
using Test::CUpdateFileBuilder;

/// Runs the built program.
class CGufToolTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void packsAndFillsIn();
    void packsTheSameBytesAgain();
    void refusesFaultySources_data();
    void refusesFaultySources();
    void keepsTheOldFileWhenPackingFails();
    void refusesOutputThatCannotBeWritten();
    void showsTextForPeople();
    void showsJson();
    void reportsFaultyFile_data();
    void reportsFaultyFile();
    void tellsUsage_data();
    void tellsUsage();
    void samplesAreFaultless();

private:
    struct CRun
    {
        int exitCode = -1;
        QString output;
        QString errorOutput;
    };
    static CRun run(const QStringList &arguments);

    void writeSource(const QByteArray &manifest) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_source;
    QString m_file;
};

static const QByteArray PAYLOAD = QByteArray(5000, 'p');

/// A source manifest that leaves out what can be filled in.
static QByteArray getManifest()
{
    QByteArray manifest = CUpdateFileBuilder::makeManifest(QStringLiteral("images/a.img"), PAYLOAD);
    const int begin = manifest.indexOf("\"size\"");
    const int end = manifest.indexOf("\"targetFile\"");
    return manifest.remove(begin, end - begin);
}

void CGufToolTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_source = m_folder->filePath(QStringLiteral("source"));
    m_file = m_folder->filePath(QStringLiteral("update.guf"));
    QVERIFY(QDir().mkpath(m_source + QStringLiteral("/images")));
    writeSource(getManifest());
    Test::writeFile(m_source + QStringLiteral("/images/a.img"), PAYLOAD);
}

void CGufToolTest::writeSource(const QByteArray &manifest) const
{
    Test::writeFile(m_source + QStringLiteral("/update.json"), manifest);
}

CGufToolTest::CRun CGufToolTest::run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(GUFTOOL_PATH), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(), process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void CGufToolTest::packsAndFillsIn()
{
    Test::writeFile(m_source + QStringLiteral("/notes.txt"), "not packed");
    const CRun packed = run({QStringLiteral("pack"), m_source, m_file});
    QCOMPARE(packed.errorOutput, QString());
    QCOMPARE(packed.exitCode, 0);

    const CUpdateManifest manifest = CUpdateFileReader::read(m_file);
    QCOMPARE(manifest.updates.size(), 1);
    const CPayload &payload = manifest.updates.constFirst().steps.at(3).payload;
    QCOMPARE(payload.name, QStringLiteral("images/a.img"));
    QCOMPARE(payload.size, qint64(PAYLOAD.size()));
    QCOMPARE(payload.sha256, QCryptographicHash::hash(PAYLOAD, QCryptographicHash::Sha256));
    QCOMPARE(run({QStringLiteral("verify"), m_file}).exitCode, 0);
    // Nothing of the work is left beside the file.
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList({QStringLiteral("source"), QStringLiteral("update.guf")}));
}

void CGufToolTest::packsTheSameBytesAgain()
{
    const QString again = m_folder->filePath(QStringLiteral("again.guf"));
    QCOMPARE(run({QStringLiteral("pack"), m_source, m_file}).exitCode, 0);
    QFile image(m_source + QStringLiteral("/images/a.img"));
    QVERIFY(image.open(QIODevice::ReadWrite));
    QVERIFY(image.setFileTime(QDateTime(QDate(2001, 1, 1), QTime(1, 1)),
                              QFileDevice::FileModificationTime));
    QCOMPARE(run({QStringLiteral("pack"), m_source, again}).exitCode, 0);

    QFile first(m_file);
    QFile second(again);
    QVERIFY(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    QVERIFY(first.readAll() == second.readAll());
}

void CGufToolTest::refusesFaultySources_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("fault");

    const auto row = [](const char *name, const char *before, const char *after,
                        const char *fault) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromUtf8(fault);
    };
    row("no JSON", "\"updates\":", "\"updates\"",
        "update.json is not JSON at line 3, column 13: a colon is missing after a name");
    row("misspelt field", "targetFile", "targetfile",
        "update.json: the field \"updates[0].steps[3].targetfile\" is unknown; known here are "
        "kind, estimatedMs, description, payload, size, sha256, targetFile");
    row("name twice", "\"version\"", "\"models\": [], \"version\"",
        "update.json has the name \"models\" twice in one object, again at line 8, column 7");
    row("updates are no list", "\"updates\": [", "\"updates\": {}, \"x\": [",
        "update.json: the field \"x\" is unknown; known here are formatVersion, updates");
    row("steps are no list", "\"steps\": [", "\"steps\": 1, \"x\": [",
        "update.json: the field \"updates[0].x\" is unknown; known here are version, description, "
        "releaseNotes, models, deviceVersions, minimumVersion, steps");
    row("payload missing", "images/a.img", "images/b.img",
        "the payload \"images/b.img\" is missing in the folder");
    row("payload outside", "images/a.img", "../a.img",
        "update.json: the field \"updates[0].steps[3].payload\" has an empty part or one of dots "
        "only; use a plain path");
    row("another size than stated", "\"targetFile\"", "\"size\": 4999, \"targetFile\"",
        "the payload \"images/a.img\" is too long: it has 5000 bytes where update.json says 4999");
    row("another digest than stated", "\"targetFile\"",
        "\"sha256\": \"0000000000000000000000000000000000000000000000000000000000000000\", "
        "\"targetFile\"",
        "the payload \"images/a.img\" does not match its SHA-256 in update.json");
}

void CGufToolTest::refusesFaultySources()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, fault);
    QVERIFY(getManifest().contains(before));
    writeSource(getManifest().replace(before, after));

    const CRun packed = run({QStringLiteral("pack"), m_source, m_file});
    QCOMPARE(packed.exitCode, 1);
    QVERIFY2(packed.errorOutput.endsWith(QStringLiteral(": %1\n").arg(fault)),
             qPrintable(packed.errorOutput));
    QCOMPARE(packed.errorOutput.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFile::exists(m_file));
}

void CGufToolTest::keepsTheOldFileWhenPackingFails()
{
    QCOMPARE(run({QStringLiteral("pack"), m_source, m_file}).exitCode, 0);
    writeSource(getManifest().replace("\"targetFile\"", "\"size\": 1, \"targetFile\""));
    QCOMPARE(run({QStringLiteral("pack"), m_source, m_file}).exitCode, 1);
    QCOMPARE(CUpdateFileReader::read(m_file).updates.size(), 1);
}

void CGufToolTest::refusesOutputThatCannotBeWritten()
{
    const QString nowhere = m_folder->filePath(QStringLiteral("missing/update.guf"));
    const CRun packed = run({QStringLiteral("pack"), m_source, nowhere});
    QCOMPARE(packed.exitCode, 1);
    QCOMPARE(
        packed.errorOutput,
        QStringLiteral("Update file %1: its folder does not exist or is read-only\n").arg(nowhere));

    const CRun onFolder = run({QStringLiteral("pack"), m_source, m_source});
    QCOMPARE(onFolder.exitCode, 1);
    QVERIFY(QFileInfo(m_source).isDir());
}

void CGufToolTest::showsTextForPeople()
{
    CUpdateFileBuilder::makeValid(PAYLOAD).write(m_file);
    const CRun shown = run({QStringLiteral("inspect"), m_file});
    QCOMPARE(shown.exitCode, 0);
    for (const char *line :
         {"  Version:          2.0.0\n", "  Models:           VX-1, VX-2\n",
          "  Device versions:  R1\n", "  Minimum version:  1.0.0\n",
          "  Release notes:    - One\n                    - Two\n",
          "     1. CheckPreconditions      100 ms  DeviceStatus = 0\n",
          "     4. FileUpload             by size  firmware.img (5000 bytes) to FirmwareImage  "
          "[Image]\n",
          "     6. DeviceReset            4000 ms\n"})
        QVERIFY2(shown.output.contains(QString::fromLatin1(line)), qPrintable(shown.output));
}

void CGufToolTest::showsJson()
{
    CUpdateFileBuilder::makeValid(PAYLOAD).write(m_file);
    const CRun shown = run({QStringLiteral("inspect"), QStringLiteral("--json"), m_file});
    QCOMPARE(shown.exitCode, 0);
    const QJsonObject object = QJsonDocument::fromJson(shown.output.toUtf8()).object();
    QCOMPARE(object.value(QStringLiteral("file")).toString(), m_file);
    QCOMPARE(object.value(QStringLiteral("formatVersion")).toInt(), 1);

    // What is shown is the manifest itself, but for what it may leave out.
    QJsonObject update = object.value(QStringLiteral("updates")).toArray().at(0).toObject();
    const QJsonObject expected
        = QJsonDocument::fromJson(
              CUpdateFileBuilder::makeManifest(QStringLiteral("firmware.img"), PAYLOAD))
              .object()
              .value(QStringLiteral("updates"))
              .toArray()
              .at(0)
              .toObject();
    QJsonArray steps = update.value(QStringLiteral("steps")).toArray();
    for (QJsonValueRef step : steps) {
        QJsonObject stepObject = step.toObject();
        if (stepObject.value(QStringLiteral("description")).toString().isEmpty())
            stepObject.remove(QStringLiteral("description"));
        step = stepObject;
    }
    update.insert(QStringLiteral("steps"), steps);
    QCOMPARE(update, expected);
}

void CGufToolTest::reportsFaultyFile_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("verify") << QStringList{QStringLiteral("verify")};
    QTest::newRow("inspect") << QStringList{QStringLiteral("inspect")};
    QTest::newRow("inspect as JSON")
        << QStringList{QStringLiteral("inspect"), QStringLiteral("--json")};
}

void CGufToolTest::reportsFaultyFile()
{
    QFETCH(QStringList, command);
    Test::writeFile(m_file, "no archive");
    const CRun result = run(command + QStringList{m_file});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(
        result.errorOutput,
        QStringLiteral("Update file %1: this is not an update file, as it is not a ZIP archive\n")
            .arg(m_file));
}

void CGufToolTest::tellsUsage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("nothing") << QString() << 2;
    QTest::newRow("unknown command") << QStringLiteral("unpack a") << 2;
    QTest::newRow("unknown option") << QStringLiteral("verify --fast a") << 2;
    QTest::newRow("option of another command") << QStringLiteral("verify --json a") << 2;
    QTest::newRow("no file") << QStringLiteral("verify") << 2;
    QTest::newRow("two files") << QStringLiteral("inspect a b") << 2;
    QTest::newRow("pack without a file") << QStringLiteral("pack a") << 2;
    QTest::newRow("asked for") << QStringLiteral("--help") << 0;
}

void CGufToolTest::tellsUsage()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    const CRun result = run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.output.contains(QStringLiteral("Usage: guftool")), exitCode == 0);
    QCOMPARE(result.errorOutput.contains(QStringLiteral("Usage: guftool")), exitCode == 2);
}

void CGufToolTest::samplesAreFaultless()
{
    const QDir folder(QStringLiteral(SAMPLES_PATH));
    const QStringList names = folder.entryList({QStringLiteral("*.guf")}, QDir::Files);
    QVERIFY(names.contains(QStringLiteral("vx-1400m_2.0.0.guf")));
    for (const QString &name : names) {
        const CRun result = run({QStringLiteral("verify"), folder.filePath(name)});
        QVERIFY2(result.exitCode == 0, qPrintable(result.errorOutput));
    }
}

QTEST_GUILESS_MAIN(CGufToolTest)
#include "tst_guftool.moc"
