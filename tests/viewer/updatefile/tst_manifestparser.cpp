#include "updatefilebuilder.h"
#include "viewer/camerapool/updatefile/manifestparser.h"

#include <QtTest>

using namespace Viewer::CameraPool::UpdateFile;
using Plugin::CameraPool::EFirmwareUpdateStep;

class CManifestParserTest : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryField();
    void acceptsVariants_data();
    void acceptsVariants();
    void refusesFaults_data();
    void refusesFaults();
    void refusesTooMuch_data();
    void refusesTooMuch();
    void refusesWhatIsNoManifest_data();
    void refusesWhatIsNoManifest();
};

static const QByteArray PAYLOAD = QByteArrayLiteral("firmware");

static QByteArray getManifest()
{
    return Test::CUpdateFileBuilder::makeManifest(QStringLiteral("fw/image.bin"), PAYLOAD);
}

/// The manifest with one place changed.
static QByteArray getChanged(const QByteArray &before, const QByteArray &after)
{
    QByteArray manifest = getManifest();
    const int position = manifest.indexOf(before);
    if (position < 0)
        qFatal("The manifest does not hold %s", before.constData());
    return manifest.replace(position, before.size(), after);
}

static QString parseFault(const QByteArray &json)
{
    const CManifestResult result = parseManifest(json);
    if (!result.fault.isEmpty() && !result.manifest.updates.isEmpty())
        return QStringLiteral("a fault and a manifest at once");
    return result.fault;
}

void CManifestParserTest::readsEveryField()
{
    const CManifestResult result = parseManifest(getManifest());
    QCOMPARE(result.fault, QString());
    QCOMPARE(result.manifest.updates.size(), 1);
    const CUpdateEntry &update = result.manifest.updates.constFirst();
    QCOMPARE(update.version, QStringLiteral("2.0.0"));
    QCOMPARE(update.description, QStringLiteral("Feature release"));
    QCOMPARE(update.releaseNotes, QStringLiteral("- One\n- Two"));
    QCOMPARE(update.models, QStringList({QStringLiteral("VX-1"), QStringLiteral("VX-2")}));
    QCOMPARE(update.deviceVersions, QStringList{QStringLiteral("R1")});
    QCOMPARE(update.minimumVersion, QStringLiteral("1.0.0"));

    const QVector<EFirmwareUpdateStep> kinds{
        EFirmwareUpdateStep::CheckPreconditions, EFirmwareUpdateStep::AcquireUpdateData,
        EFirmwareUpdateStep::FeatureWrite,       EFirmwareUpdateStep::FileUpload,
        EFirmwareUpdateStep::FeatureExecute,     EFirmwareUpdateStep::DeviceReset,
        EFirmwareUpdateStep::FeatureAssert};
    QCOMPARE(update.steps.size(), kinds.size());
    for (int index = 0; index < kinds.size(); ++index)
        QCOMPARE(update.steps.at(index).kind, kinds.at(index));

    const CUpdateStep &check = update.steps.at(0);
    QCOMPARE(check.estimatedMs.value(), 100);
    QCOMPARE(check.preconditions.size(), 1);
    QCOMPARE(check.preconditions.constFirst().feature, QStringLiteral("DeviceStatus"));
    QCOMPARE(check.preconditions.constFirst().value, QStringLiteral("0"));
    QCOMPARE(update.steps.at(2).feature.feature, QStringLiteral("Mode"));
    QCOMPARE(update.steps.at(2).feature.value, QStringLiteral("On"));
    const CUpdateStep &upload = update.steps.at(3);
    QVERIFY(!upload.estimatedMs);
    QCOMPARE(upload.description, QStringLiteral("Image"));
    QCOMPARE(upload.payload.name, QStringLiteral("fw/image.bin"));
    QCOMPARE(upload.payload.size, qint64(PAYLOAD.size()));
    QCOMPARE(upload.payload.sha256, QCryptographicHash::hash(PAYLOAD, QCryptographicHash::Sha256));
    QCOMPARE(upload.targetFile, QStringLiteral("FirmwareImage"));
    QCOMPARE(update.steps.at(4).feature.feature, QStringLiteral("Activate"));
}

void CManifestParserTest::acceptsVariants_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("no description") << getChanged("\"description\": \"Feature release\",", "");
    QTest::newRow("no release notes") << getChanged("\"releaseNotes\": \"- One\\n- Two\",", "");
    QTest::newRow("no device versions") << getChanged("\"deviceVersions\": [\"R1\"],", "");
    QTest::newRow("empty list of device versions") << getChanged("[\"R1\"]", "[]");
    QTest::newRow("no minimum version") << getChanged("\"minimumVersion\": \"1.0.0\",", "");
    QTest::newRow("upload with an estimate")
        << getChanged("\"description\": \"Image\"", "\"estimatedMs\": 5");
    const QByteArray digest = QCryptographicHash::hash(PAYLOAD, QCryptographicHash::Sha256).toHex();
    QTest::newRow("digest in capital letters") << getChanged(digest, digest.toUpper());
    QTest::newRow("empty value") << getChanged("\"On\"", "\"\"");
    QTest::newRow("other scripts")
        << getChanged("Feature release", "\xEA\xB8\xB0\xEB\x8A\xA5 \xF0\x9F\x93\xB7");
    QTest::newRow("same name in different objects") << getChanged(
        "\"value\": \"0\" }", "\"value\": \"0\" }, { \"feature\": \"A\", \"value\": \"1\" }");
    QTest::newRow("brackets and quotation marks in a text")
        << getChanged("Feature release", "[[[[[[[[[[[[[[[[[[{{{{ \\\" : \\\\");
    QTest::newRow("data acquired before the check")
        << getChanged("\"CheckPreconditions\", \"estimatedMs\": 100,\n          \"preconditions\": "
                      "[{ \"feature\": \"DeviceStatus\", \"value\": \"0\" }] },\n        { "
                      "\"kind\": \"AcquireUpdateData\"",
                      "\"AcquireUpdateData\", \"estimatedMs\": 1 },\n        { \"kind\": "
                      "\"CheckPreconditions\"");
}

void CManifestParserTest::acceptsVariants()
{
    QFETCH(QByteArray, json);
    QCOMPARE(parseFault(json), QString());
}

void CManifestParserTest::refusesFaults_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("fault");

    const auto row = [](const char *name, const char *before, const char *after,
                        const char *fault) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromUtf8(fault);
    };
    row("unknown format version", "\"formatVersion\": 1", "\"formatVersion\": 2, \"new\": 1",
        "update.json: the format version is 2, but this program reads version 1 only");
    row("no format version", "\"formatVersion\": 1,", "",
        "update.json: the field \"formatVersion\" is missing");
    row("format version as a text", "\"formatVersion\": 1", "\"formatVersion\": \"1\"",
        "update.json: the field \"formatVersion\" is a text where a number is wanted");
    row("no updates", "\"updates\"", "\"update\"",
        "update.json: the field \"update\" is unknown; known here are formatVersion, updates");
    row("update is no object", "\"updates\": [", "\"updates\": [ 5,",
        "update.json: the field \"updates[0]\" is a number where an object is wanted");
    row("misspelt field", "\"version\"", "\"versoin\"",
        "update.json: the field \"updates[0].versoin\" is unknown; known here are version, "
        "description, releaseNotes, models, deviceVersions, minimumVersion, steps");
    row("missing version", "\"version\": \"2.0.0\",", "",
        "update.json: the field \"updates[0].version\" is missing");
    row("empty version", "\"version\": \"2.0.0\"", "\"version\": \"\"",
        "update.json: the field \"updates[0].version\" is empty");
    row("unreadable version", "\"version\": \"2.0.0\"", "\"version\": \"latest\"",
        "update.json: the field \"updates[0].version\" is \"latest\", which is not a version like "
        "2.0.0 or 2.0.0-rc1");
    row("version with a line break", "\"version\": \"2.0.0\"", "\"version\": \"2.0\\n\"",
        "update.json: the field \"updates[0].version\" has a line break or a control character");
    row("unreadable minimum version", "\"1.0.0\"", "\"old\"",
        "update.json: the field \"updates[0].minimumVersion\" is \"old\", which is not a version "
        "like 2.0.0 or 2.0.0-rc1");
    row("white space around a model", "\"VX-1\"", "\"VX-1 \"",
        "update.json: the field \"updates[0].models[0]\" begins or ends with white space");
    row("model twice", "\"VX-2\"", "\"VX-1\"",
        "update.json: the field \"updates[0].models[1]\" repeats \"VX-1\"");
    row("no model", "[\"VX-1\", \"VX-2\"]", "[]",
        "update.json: the field \"updates[0].models\" is an empty list");
    row("model is no text", "\"VX-2\"", "null",
        "update.json: the field \"updates[0].models[1]\" is null where a text is wanted");
    row("text reversed by a formatting character", "Feature release", "\\u202eesaeler",
        "update.json: the field \"updates[0].description\" has a line break or a control "
        "character");
    row("half a character", "Feature release", "\\ud800",
        "update.json: the field \"updates[0].description\" has a line break or a control "
        "character");
    row("control character in the release notes", "- One", "\\u0007",
        "update.json: the field \"updates[0].releaseNotes\" has a control character");
    row("unknown kind", "\"DeviceReset\"", "\"Reset\"",
        "update.json: the field \"updates[0].steps[5].kind\" is \"Reset\"; known kinds are "
        "CheckPreconditions, AcquireUpdateData, FeatureWrite, FeatureExecute, FeatureAssert, "
        "FileUpload, DeviceReset");
    row("field of another kind", "\"feature\": \"Activate\"",
        "\"feature\": \"Activate\", \"value\": \"1\"",
        "update.json: the field \"updates[0].steps[4].value\" is unknown; known here are kind, "
        "estimatedMs, description, feature");
    row("no estimate", "\"estimatedMs\": 4000", "\"description\": \"\"",
        "update.json: the field \"updates[0].steps[5].estimatedMs\" is missing");
    row("estimate of nothing", "\"estimatedMs\": 4000", "\"estimatedMs\": 0",
        "update.json: the field \"updates[0].steps[5].estimatedMs\" has to be a whole number from "
        "1 to 86400000");
    row("fraction", "\"estimatedMs\": 4000", "\"estimatedMs\": 1.5",
        "update.json: the field \"updates[0].steps[5].estimatedMs\" has to be a whole number from "
        "1 to 86400000");
    row("estimate beyond all numbers", "\"estimatedMs\": 4000", "\"estimatedMs\": 1e300",
        "update.json: the field \"updates[0].steps[5].estimatedMs\" has to be a whole number from "
        "1 to 86400000");
    row("estimates too long together", "\"estimatedMs\": 4000", "\"estimatedMs\": 86400000",
        "update.json: the field \"updates[0].steps\" takes 86400510 ms by its estimates; 86400000 "
        "are allowed");
    row("no target file", ", \"targetFile\": \"FirmwareImage\"", "",
        "update.json: the field \"updates[0].steps[3].targetFile\" is missing");
    row("no payload size", "\"size\": 8,", "",
        "update.json: the field \"updates[0].steps[3].size\" is missing");
    row("empty payload", "\"size\": 8", "\"size\": 0",
        "update.json: the field \"updates[0].steps[3].size\" has to be a whole number from 1 to "
        "536870912");
    row("short digest", "\"sha256\": \"", "\"sha256\": \"0",
        "update.json: the field \"updates[0].steps[3].sha256\" has to be 64 hexadecimal digits");
    row("payload outside", "fw/image.bin", "fw/../../image.bin",
        "update.json: the field \"updates[0].steps[3].payload\" has an empty part or one of dots "
        "only; use a plain path");
    row("payload is the manifest", "fw/image.bin", "update.json",
        "update.json: the field \"updates[0].steps[3].payload\" names the manifest itself");
    row("second check", "\"AcquireUpdateData\"", "\"CheckPreconditions\"",
        "update.json: the field \"updates[0].steps[1].kind\" is a second CheckPreconditions; one "
        "is allowed");
    row("check after a change",
        "\"CheckPreconditions\", \"estimatedMs\": 100,\n          \"preconditions\": "
        "[{ \"feature\": \"DeviceStatus\", \"value\": \"0\" }] },\n        { \"kind\": "
        "\"AcquireUpdateData\"",
        "\"DeviceReset\", \"estimatedMs\": 1 },\n        { \"kind\": \"CheckPreconditions\"",
        "update.json: the field \"updates[0].steps[1].kind\" checks preconditions after a step "
        "that changes the camera");
    row("second acquisition", "\"DeviceReset\"", "\"AcquireUpdateData\"",
        "update.json: the field \"updates[0].steps[5].kind\" is a second AcquireUpdateData; one is "
        "allowed");
    row("unknown field in a precondition", "\"value\": \"0\"", "\"value\": \"0\", \"max\": 1",
        "update.json: the field \"updates[0].steps[0].preconditions[0].max\" is unknown; known "
        "here are feature, value");
    row("name twice", "\"minimumVersion\": \"1.0.0\",",
        "\"minimumVersion\": \"1.0.0\",\n      \"vers\\u0069on\": \"3.0.0\",",
        "update.json has the name \"version\" twice in one object, again at line 11, column 7");
    row("comma missing", "\"version\": \"2.0.0\",", "\"version\": \"2.0.0\"",
        "update.json is not JSON at line 6, column 7: a name in quotation marks, "
        "a comma or a closing brace is missing");
}

void CManifestParserTest::refusesFaults()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QTEST(parseFault(getChanged(before, after)), "fault");
}

void CManifestParserTest::refusesTooMuch_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("fault");

    const auto repeat = [](const char *item, int count) {
        QByteArray list(item);
        for (int index = 1; index < count; ++index)
            list += ", " + QByteArray(item);
        return list;
    };
    const QByteArray letters(20000, 'x');
    const QByteArray reset = R"({ "kind": "DeviceReset", "estimatedMs": 1 })";
    const QByteArray condition = R"({ "feature": "A", "value": "1" })";

    QTest::newRow("bytes") << getManifest().leftJustified(1024 * 1024 + 1, ' ')
                           << QStringLiteral("update.json has 1048577 bytes; 1048576 are allowed");
    QTest::newRow("nesting") << QByteArray(200000, '[')
                             << QStringLiteral("update.json is nested more than 16 levels deep at "
                                               "line 1, column 17");
    QTest::newRow("updates")
        << "{\"formatVersion\": 1, \"updates\": [" + repeat("{}", 33) + "]}"
        << QStringLiteral("update.json: the field \"updates\" has 33 items; 32 are allowed");
    QTest::newRow("steps") << getChanged("\"steps\": [",
                                         "\"steps\": [" + repeat(reset.constData(), 65) + ",")
                           << QStringLiteral("update.json: the field \"updates[0].steps\" has 72 "
                                             "items; 64 are allowed");
    QTest::newRow("preconditions")
        << getChanged("\"preconditions\": [",
                      "\"preconditions\": [" + repeat(condition.constData(), 32) + ",")
        << QStringLiteral("update.json: the field \"updates[0].steps[0].preconditions\" has 33 "
                          "items; 32 are allowed");
    QTest::newRow("version") << getChanged("\"2.0.0\"", "\"2.0.0-" + letters + "\"")
                             << QStringLiteral("update.json: the field \"updates[0].version\" is "
                                               "longer than 64 characters");
    QTest::newRow("description")
        << getChanged("Feature release", letters)
        << QStringLiteral("update.json: the field \"updates[0].description\" is longer than 500 "
                          "characters");
    QTest::newRow("release notes")
        << getChanged("- One", letters)
        << QStringLiteral("update.json: the field \"updates[0].releaseNotes\" is longer than 10000 "
                          "characters");
    QTest::newRow("payload name")
        << getChanged("fw/image.bin", letters)
        << QStringLiteral("update.json: the field \"updates[0].steps[3].payload\" is longer than "
                          "200 characters");
    QTest::newRow("unknown name")
        << getChanged("\"version\"", "\"" + letters + "\"")
        << QStringLiteral("update.json: the field \"updates[0].%1...\" is unknown; known here are "
                          "version, description, releaseNotes, models, deviceVersions, "
                          "minimumVersion, steps")
               .arg(QString(69, QLatin1Char('x')));
}

void CManifestParserTest::refusesTooMuch()
{
    QFETCH(QByteArray, json);
    QTEST(parseFault(json), "fault");
}

void CManifestParserTest::refusesWhatIsNoManifest_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("fault");

    const auto row = [](const char *name, const QByteArray &json, const char *fault) {
        QTest::newRow(name) << json << QString::fromUtf8(fault);
    };
    row("nothing", QByteArray(), "update.json is empty");
    row("white space", " \n", "update.json is empty");
    row("list", "[]", "update.json has to be an object in braces at its top level");
    row("words", "hello", "update.json is not JSON at line 1, column 1: this is not a value");
    row("text never ends", "{\n \"a\": \"b",
        "update.json is not JSON at line 2, column 9: a closing quotation mark is missing");
    row("no UTF-8", "{ \"a\": \"\xff\" }",
        "update.json is not JSON at line 1, column 9: this text is not UTF-8");
    row("misspelt true", "{ \"a\": tru }",
        "update.json is not JSON at line 1, column 10: this is not a value");
    row("comma between items missing", "{ \"a\": [ 1 2 ] }",
        "update.json is not JSON at line 1, column 12: a comma is missing");
    row("comma too many", "{ \"a\": 1, }",
        "update.json is not JSON at line 1, column 11: a name in quotation marks or a value is "
        "missing");
    row("name without quotation marks", "{ a: 1 }",
        "update.json is not JSON at line 1, column 3: a name in quotation marks, a comma or a "
        "closing brace is missing");
    row("object never ends", "{ \"a\": {}\n\n",
        "update.json is not JSON at line 1, column 9: a name in quotation marks, a comma or a "
        "closing brace is missing");
    row("columns count characters", "{ \"\xC3\xA4\xC3\xB6\": x }",
        "update.json is not JSON at line 1, column 9: this is not a value");
    row("something behind", "{} {}",
        "update.json is not JSON at line 1, column 4: something follows the closing brace");
}

void CManifestParserTest::refusesWhatIsNoManifest()
{
    QFETCH(QByteArray, json);
    QTEST(parseFault(json), "fault");
}

QTEST_GUILESS_MAIN(CManifestParserTest)
#include "tst_manifestparser.moc"
