#include "viewer/camerapool/simulation/cameradescriptionreader.h"

#include "core/baseexception.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Viewer::CameraPool;
using namespace Viewer::CameraPool::Simulation;

namespace {

/// A faultless description of one camera on eleven lines; tests replace parts of it.
QByteArray makeValid()
{
    return R"({
  "format": 1,
  "layers": [
    { "id": "layer", "displayName": "Layer", "cameras": [
      { "id": "cam-1", "displayName": "First camera", "model": "VX-1400M",
        "serialNumber": "1", "deviceVersion": "R1", "firmwareVersion": "1.0.0",
        "statusCode": -7, "uploadSpeed": 5000,
        "faults": { "vanishesAtByte": 10, "returnsLate": true } }
    ] }
  ]
})";
}

QString readFault(const QByteArray &text)
{
    try {
        (void)CCameraDescriptionReader::read(text, QStringLiteral("cams.json"));
    } catch (const Core::Exception::BaseException &error) {
        return error.getMessage();
    }
    return QString();
}

} // namespace

class CCameraDescriptionReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void readsEveryField();
    void givesDefaultsToOptionalFields();
    void takesEscapesAndByteOrderMark();
    void refusesFaultsWithPlaceAndField_data();
    void refusesFaultsWithPlaceAndField();
    void refusesEveryTruncation();
    void refusesWhatIsNoReadableFile_data();
    void refusesWhatIsNoReadableFile();
    void refusesTooManyCameras();
    void builtInDescriptionIsComplete();
    void faultSampleHasOneCameraPerFault();
};

void CCameraDescriptionReaderTest::readsEveryField()
{
    const CCameraDescription description
        = CCameraDescriptionReader::read(makeValid(), QStringLiteral("cams.json"));
    QCOMPARE(description.layers.size(), 1);
    QCOMPARE(description.layers[0].id, QStringLiteral("layer"));
    QCOMPARE(description.layers[0].displayName, QStringLiteral("Layer"));
    QCOMPARE(description.layers[0].cameras.size(), 1);
    const CCameraDescriptionEntry &entry = description.layers[0].cameras[0];
    const CCameraSnapshot expected{QStringLiteral("cam-1"),
                                   QStringLiteral("First camera"),
                                   QStringLiteral("VX-1400M"),
                                   QStringLiteral("1"),
                                   QStringLiteral("R1"),
                                   QStringLiteral("1.0.0"),
                                   -7};
    QVERIFY(entry.camera == expected);
    QCOMPARE(entry.uploadSpeed, qint64(5000));
    QVERIFY(entry.faults.vanishesAtByte == 10);
    QVERIFY(entry.faults.returnsLate);
    QVERIFY(!entry.faults.uploadFailsAtByte);
    QVERIFY(!entry.faults.writeRefused);
}

void CCameraDescriptionReaderTest::givesDefaultsToOptionalFields()
{
    QByteArray text = makeValid();
    text.replace("\"statusCode\": -7, \"uploadSpeed\": 5000,", "");
    text.replace("\"firmwareVersion\": \"1.0.0\",", "\"firmwareVersion\": \"1.0.0\"");
    text.replace("\"faults\": { \"vanishesAtByte\": 10, \"returnsLate\": true }", "");
    const CCameraDescription description
        = CCameraDescriptionReader::read(text, QStringLiteral("cams.json"));
    const CCameraDescriptionEntry &entry = description.layers[0].cameras[0];
    QCOMPARE(entry.camera.statusCode, 0);
    QCOMPARE(entry.uploadSpeed, CCameraDescriptionReader::DefaultUploadSpeed);
    QVERIFY(!entry.faults.returnsLate);
}

void CCameraDescriptionReaderTest::takesEscapesAndByteOrderMark()
{
    QByteArray text = "\xEF\xBB\xBF" + makeValid();
    text.replace("First camera", "\\u004eo \\\"1\\\" \\ud83d\\ude00 \xC3\xBC");
    const CCameraDescription description
        = CCameraDescriptionReader::read(text, QStringLiteral("cams.json"));
    QCOMPARE(description.layers[0].cameras[0].camera.displayName,
             QString::fromUtf8("No \"1\" \xF0\x9F\x98\x80 \xC3\xBC"));
}

void CCameraDescriptionReaderTest::refusesFaultsWithPlaceAndField_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("place"); // between the file's name and the fault
    QTest::addColumn<QString>("fault");

    const auto row = [](const char *name, const char *before, const char *after, const char *place,
                        const char *fault) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(after) << QString::fromLatin1(place)
                            << QString::fromLatin1(fault);
    };
    const QByteArray camera = ", field \"layers[0].cameras[0]";
    const auto at = [&camera](const char *place, const char *field) {
        return QByteArray(place) + camera + field + '"';
    };

    row("misspelt field", "\"model\"", "\"modle\"", at("line 5, column 64", ".modle"),
        "unknown field");
    row("unknown field at the top", "\"format\": 1", "\"format\": 1, \"x\": 2",
        "line 2, column 21, field \"x\"", "unknown field");
    row("field given twice", "\"serialNumber\": \"1\"", "\"id\": \"1\"",
        at("line 6, column 15", ".id"), "the field is given twice");
    row("missing field", "\"serialNumber\": \"1\",", "", at("line 5, column 7", ""),
        "the field \"serialNumber\" is missing");
    row("missing format", "\"format\": 1,", "", "line 1, column 1",
        "the field \"format\" is missing");
    row("unknown format", "\"format\": 1", "\"format\": 2", "line 2, column 13, field \"format\"",
        "format 2 is unknown");
    row("number instead of text", "\"serialNumber\": \"1\"", "\"serialNumber\": 1",
        at("line 6, column 25", ".serialNumber"), "expected a text in double quotes, found \"1\"");
    row("text instead of number", "5000", "\"fast\"", at("line 7, column 42", ".uploadSpeed"),
        "expected a whole number from 1 to 1000000000, found a double quote");
    row("fraction", "5000", "5000.5", at("line 7, column 42", ".uploadSpeed"),
        "expected a whole number from 1 to 1000000000, found 5000.5");
    row("speed of zero", "5000", "0", at("line 7, column 42", ".uploadSpeed"),
        "expected a whole number from 1");
    row("status beyond 32 bits", "-7", "2147483648", at("line 7, column 23", ".statusCode"),
        "expected a whole number from -2147483648 to 2147483647");
    row("leading zero", "-7", "-07", at("line 7, column 23", ".statusCode"),
        "expected a whole number");
    row("negative byte", ": 10", ": -1", at("line 8, column 39", ".faults.vanishesAtByte"),
        "expected a whole number from 0");
    row("fault that is no truth value", "true", "1", at("line 8, column 58", ".faults.returnsLate"),
        "expected true or false, found \"1\"");
    row("unknown fault", "returnsLate", "explodes", at("line 8, column 55", ".faults.explodes"),
        "unknown field");
    row("empty id", "\"cam-1\"", "\" \"", at("line 5, column 15", ".id"),
        "the text must not be empty");
    row("id of the layer", "\"cam-1\"", "\"layer\"", at("line 5, column 15", ".id"),
        "the id \"layer\" is already used in line 4");
    row("line break in a name", "First camera", "First\\ncamera",
        at("line 5, column 39", ".displayName"), "must not contain line breaks");
    row("column in characters", "First camera\", \"model\": \"VX-1400M\"",
        "\xC3\xBC\xC3\xBC\", \"model\": 1", at("line 5, column 54", ".model"), "expected a text");
    row("invalid UTF-8", "First camera", "First\xFF", at("line 5, column 39", ".displayName"),
        "not valid UTF-8");
    row("half a surrogate pair", "First camera", "\\ud83d", at("line 5, column 39", ".displayName"),
        "half a surrogate pair");
    row("wrong escape", "First camera", "\\q", at("line 5, column 40", ".displayName"),
        "unknown escape sequence");
    row("wrong hexadecimal escape", "First camera", "\\u00g0",
        at("line 5, column 40", ".displayName"), "four hexadecimal digits");
    row("missing comma", "\"id\": \"cam-1\",", "\"id\": \"cam-1\"", at("line 5, column 23", ".id"),
        "expected a comma or \"}\", found a double quote");
    row("comma after the last member", "\"returnsLate\": true", "\"returnsLate\": true,",
        at("line 8, column 64", ".faults"), "expected the name of a field");
    row("missing colon", "\"format\": 1", "\"format\" 1", "line 2, column 12",
        "expected a colon after \"format\", found \"1\"");
    row("list instead of object", "{ \"id\": \"layer\"", "[ \"id\": \"layer\"",
        "line 4, column 5, field \"layers[0]\"", "expected an object");
    row("object instead of list", "\"layers\": [", "\"layers\": {",
        "line 3, column 13, field \"layers\"", "expected a list");
    row("text after the end", "\n  ]\n}", "\n  ]\n} {}", "line 11, column 3",
        "expected the end of the text");
    row("nested without end", "\"layer\", \"displayName\": \"Layer\"", "[[[[[[",
        "line 4, column 13, field \"layers[0].id\"", "expected a text");
}

void CCameraDescriptionReaderTest::refusesFaultsWithPlaceAndField()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, place);
    QFETCH(QString, fault);

    QByteArray text = makeValid();
    QVERIFY(text.contains(before));
    text.replace(before, after);
    const QString message = readFault(text);
    const QString beginning = QStringLiteral("Camera description \"cams.json\", %1: ").arg(place);
    QVERIFY2(message.startsWith(beginning), qPrintable(message));
    QVERIFY2(message.mid(beginning.size()).contains(fault), qPrintable(message));
    QVERIFY2(!message.contains(QLatin1Char('\n')), qPrintable(message));
    QVERIFY2(!message.endsWith(QLatin1Char('.')), qPrintable(message));
}

void CCameraDescriptionReaderTest::refusesEveryTruncation()
{
    const QByteArray text = makeValid();
    for (int size = 0; size < text.size(); ++size) {
        const QString message = readFault(text.left(size));
        QVERIFY2(message.contains(QLatin1String(", line ")), qPrintable(text.left(size)));
    }
}

void CCameraDescriptionReaderTest::refusesWhatIsNoReadableFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing file") << QStringLiteral("missing.json");
    QTest::newRow("folder") << QStringLiteral(".");
}

void CCameraDescriptionReaderTest::refusesWhatIsNoReadableFile()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    try {
        (void)CCameraDescriptionReader::readFile(path);
        QFAIL("nothing was thrown");
    } catch (const Core::Exception::BaseException &error) {
        QVERIFY2(error.getMessage().contains(path), error.what());
        QVERIFY2(error.getMessage().contains(QLatin1String("cannot be read")), error.what());
    }
}

void CCameraDescriptionReaderTest::refusesTooManyCameras()
{
    QByteArray text
        = "{\"format\":1,\"layers\":[{\"id\":\"l\",\"displayName\":\"l\",\"cameras\":[\n";
    for (int i = 0; i <= CCameraDescriptionReader::MaximumCameraCount; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += (i > 0 ? ",\n" : "");
        text += "{\"id\":\"c" + number
            + "\",\"displayName\":\"c\",\"model\":\"m\",\"serialNumber\":\"" + number
            + "\",\"deviceVersion\":\"R1\",\"firmwareVersion\":\"1.0\"}";
    }
    text += "]}]}";
    const QString message = readFault(text);
    QVERIFY2(message.contains(QLatin1String("line 200002,")), qPrintable(message));
    QVERIFY2(message.contains(QLatin1String("more than 200000 cameras")), qPrintable(message));
}

void CCameraDescriptionReaderTest::builtInDescriptionIsComplete()
{
    const CCameraDescription description = CCameraDescriptionReader::readBuiltIn();
    QCOMPARE(description.layers.size(), 3);
    QSet<QString> models;
    int cameraCount = 0;
    int updatableOldOnes = 0;
    int unusable = 0;
    for (const CLayerDescription &layer : description.layers) {
        for (const CCameraDescriptionEntry &entry : layer.cameras) {
            ++cameraCount;
            models.insert(entry.camera.modelName);
            unusable += entry.camera.statusCode != 0 ? 1 : 0;
            updatableOldOnes += entry.camera.modelName == QLatin1String("VX-1400M")
                    && entry.camera.deviceVersion == QLatin1String("R2")
                    && entry.camera.firmwareVersion == QLatin1String("1.2.0")
                    && entry.camera.statusCode == 0
                ? 1
                : 0;
        }
    }
    QCOMPARE(cameraCount, 12);
    QCOMPARE(models.size(), 4);
    QCOMPARE(unusable, 1);
    QCOMPARE(updatableOldOnes, 6);
}

void CCameraDescriptionReaderTest::faultSampleHasOneCameraPerFault()
{
    const CCameraDescription description
        = CCameraDescriptionReader::readFile(QStringLiteral(SAMPLE_CAMERAS "/faults.json"));
    QSet<int> faultsSeen;
    for (const CCameraDescriptionEntry &entry : description.layers.constFirst().cameras) {
        const CScriptedFaults &faults = entry.faults;
        const QVector<bool> flags{faults.preconditionNotMet,
                                  faults.writeRefused,
                                  faults.uploadFailsAtByte.has_value(),
                                  faults.vanishesAtByte.has_value(),
                                  faults.assertFails,
                                  faults.neverReturnsFromReset,
                                  faults.returnsLate,
                                  faults.returnsWithOldVersion};
        QVERIFY(flags.count(true) <= 1);
        faultsSeen.insert(flags.indexOf(true));
    }
    QCOMPARE(faultsSeen.size(), 9); // eight faults and the camera without
}

QTEST_GUILESS_MAIN(CCameraDescriptionReaderTest)
#include "tst_cameradescriptionreader.moc"
