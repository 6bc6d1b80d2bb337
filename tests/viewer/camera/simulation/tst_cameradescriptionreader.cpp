#include "viewer/camera/simulation/cameradescriptionreader.h"

#include "core/baseexception.h"

#include <QTest>

using namespace Viewer::Camera::Simulation;

/// A faultless description of one camera; tests replace parts of it.
static const char *const VALID = R"({
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
    void refusesFaultsWithPlaceAndField();
    void refusesEveryTruncation();
};

/// Each @p place is the line, the column and the field within the camera.
void CCameraDescriptionReaderTest::refusesFaultsWithPlaceAndField()
{
    const auto refuse = [](const char *before, const char *after, const QString &place,
                           const char *fault) {
        QByteArray text = VALID;
        QVERIFY(text.contains(before));
        const QString message = readFault(text.replace(before, after));
        const QString beginning = QString("Camera description \"cams.json\", line %1, "
                                          "column %2, field \"layers[0].cameras[0]%3\": ")
                                      .arg(place.section(' ', 0, 0), place.section(' ', 1, 1),
                                           place.section(' ', 2, 2));
        QVERIFY2(message.startsWith(beginning) && message.contains(fault), qPrintable(message));
        QVERIFY2(!message.contains('\n') && !message.endsWith('.'), qPrintable(message));
    };
    refuse("\"model\"", "\"modle\"", "5 64 .modle", "unknown field");
    refuse("\"serialNumber\": \"1\"", "\"id\": \"1\"", "6 15 .id", "given twice");
    refuse("\"serialNumber\": \"1\",", "", "5 7 ", "the field \"serialNumber\" is missing");
    refuse("\"1\"", "1", "6 25 .serialNumber", "expected a text");
    refuse("5000", "\"fast\"", "7 42 .uploadSpeed", "expected a whole number from 1 to 1000000000");
    refuse("-7", "2147483648", "7 23 .statusCode", "from -2147483648 to 2147483647");
    refuse(": 10", ": -1", "8 39 .faults.vanishesAtByte", "expected a whole number from 0");
    refuse("true", "1", "8 58 .faults.returnsLate", "expected true or false");
    refuse("\"cam-1\"", "\" \"", "5 15 .id", "must not be empty");
    refuse("\"cam-1\"", "\"layer\"", "5 15 .id", "\"layer\" is already used in line 4");
    refuse("First camera", "First\\ncamera", "5 39 .displayName", "must not contain line breaks");
    refuse("First camera", "First\xE2\x80\xAE", "5 39 .displayName", "control characters");
    refuse("First camera", "First\xFF", "5 39 .displayName", "not valid UTF-8");
}

void CCameraDescriptionReaderTest::refusesEveryTruncation()
{
    const QByteArray text = VALID;
    for (int size = 0; size < text.size(); ++size)
        QVERIFY2(readFault(text.left(size)).contains(", line "), qPrintable(text.left(size)));
}

QTEST_GUILESS_MAIN(CCameraDescriptionReaderTest)
#include "tst_cameradescriptionreader.moc"
