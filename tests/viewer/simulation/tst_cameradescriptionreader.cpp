#include "viewer/camerapool/simulation/cameradescriptionreader.h"

#include "core/baseexception.h"

#include <QTest>

using namespace Viewer::CameraPool::Simulation;

/// A faultless description of one camera; tests replace parts of it.
static const char *const Valid = R"({
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

static QString readFault(const QByteArray &text)
{
    try {
        (void)CCameraDescriptionReader::read(text, "cams.json");
    } catch (const Core::Exception::BaseException &error) {
        return error.getMessage();
    }
    return QString();
}

class CCameraDescriptionReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void readsFieldsAndEscapes();
    void refusesFaultsWithPlaceAndField_data();
    void refusesFaultsWithPlaceAndField();
    void refusesEveryTruncation();
    void refusesWhatIsNoReadableFile();
};

void CCameraDescriptionReaderTest::readsFieldsAndEscapes()
{
    QByteArray text = QByteArray("\xEF\xBB\xBF") + Valid;
    text.replace("First camera", "\\u004eo \\\"1\\\" \\ud83d\\ude00 \xC3\xBC");
    const auto entry = CCameraDescriptionReader::read(text, "cams.json").layers.at(0).cameras.at(0);
    const Viewer::CameraPool::CCameraSnapshot expected{
        "cam-1", "No \"1\" \U0001F600 \u00FC", "VX-1400M", "1", "R1", "1.0.0", -7};
    QVERIFY(entry.camera == expected);
    QCOMPARE(entry.uploadSpeed, qint64(5000));
    QVERIFY(entry.faults.vanishesAtByte == 10 && entry.faults.returnsLate);
}

void CCameraDescriptionReaderTest::refusesFaultsWithPlaceAndField_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("place"); // line, column and field within the camera
    QTest::addColumn<QString>("fault");
    const auto row
        = [](const char *before, const char *after, const char *place, const char *fault) {
              QTest::newRow(after)
                  << QByteArray(before) << QByteArray(after) << QString(place) << QString(fault);
          };
    row("\"model\"", "\"modle\"", "5 64 .modle", "unknown field");
    row("\"serialNumber\": \"1\"", "\"id\": \"1\"", "6 15 .id", "given twice");
    row("\"serialNumber\": \"1\",", "", "5 7 ", "the field \"serialNumber\" is missing");
    row("\"1\"", "1", "6 25 .serialNumber", "expected a text");
    row("5000", "\"fast\"", "7 42 .uploadSpeed", "expected a whole number from 1 to 1000000000");
    row("5000", "0", "7 42 .uploadSpeed", "expected a whole number");
    row("-7", "2147483648", "7 23 .statusCode", "from -2147483648 to 2147483647");
    row(": 10", ": -1", "8 39 .faults.vanishesAtByte", "expected a whole number from 0");
    row("true", "1", "8 58 .faults.returnsLate", "expected true or false");
    row("\"cam-1\"", "\" \"", "5 15 .id", "must not be empty");
    row("\"cam-1\"", "\"layer\"", "5 15 .id", "\"layer\" is already used in line 4");
    row("First camera", "First\\ncamera", "5 39 .displayName", "must not contain line breaks");
    row("First camera", "First\xFF", "5 39 .displayName", "not valid UTF-8");
}

void CCameraDescriptionReaderTest::refusesFaultsWithPlaceAndField()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, place);
    QFETCH(QString, fault);
    QByteArray text = Valid;
    QVERIFY(text.contains(before));
    const QString message = readFault(text.replace(before, after));
    const QString beginning
        = QString("Camera description \"cams.json\", line %1, column %2, field "
                  "\"layers[0].cameras[0]%3\": ")
              .arg(place.section(' ', 0, 0), place.section(' ', 1, 1), place.section(' ', 2, 2));
    QVERIFY2(message.startsWith(beginning), qPrintable(message));
    QVERIFY2(message.mid(beginning.size()).contains(fault), qPrintable(message));
    QVERIFY2(!message.contains('\n') && !message.endsWith('.'), qPrintable(message));
}

void CCameraDescriptionReaderTest::refusesEveryTruncation()
{
    const QByteArray text = Valid;
    for (int size = 0; size < text.size(); ++size)
        QVERIFY2(readFault(text.left(size)).contains(", line "), qPrintable(text.left(size)));
}

void CCameraDescriptionReaderTest::refusesWhatIsNoReadableFile()
{
    for (const char *path : {"/missing.json", "/"})
        QVERIFY_EXCEPTION_THROWN(CCameraDescriptionReader::readFile(path),
                                 Core::Exception::BaseException);
}

QTEST_GUILESS_MAIN(CCameraDescriptionReaderTest)
#include "tst_cameradescriptionreader.moc"
