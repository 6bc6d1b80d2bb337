#include "viewer/camerapool/simulation/firmwareimage.h"

#include <QTest>

using Viewer::CameraPool::Simulation::CFirmwareImage;

class CFirmwareImageTest : public QObject
{
    Q_OBJECT

private slots:
    void parses_data();
    void parses();
};

void CFirmwareImageTest::parses_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("model");

    const QByteArray filler(2000, 'x');
    QTest::newRow("model and version") << QByteArray("model: A-1\nversion: 2.0.0\n\nrest")
                                       << QStringLiteral("2.0.0") << QStringLiteral("A-1");
    QTest::newRow("any letter case, other keys, line ends of Windows")
        << QByteArray("Size: 5\r\nVERSION:  2.0.0-rc1 \r\n\r\n") << QStringLiteral("2.0.0-rc1")
        << QString();
    QTest::newRow("after the empty line")
        << QByteArray("size: 5\n\nversion: 2.0.0\n") << QString() << QString();
    QTest::newRow("no header") << QByteArray("\x7f\x01\x02\nversion: 2.0.0\n") << QString()
                               << QString();
    QTest::newRow("line without end") << QByteArray("version: 2.0.0") << QString() << QString();
    QTest::newRow("beyond the header's size")
        << QByteArray("comment: " + filler + "\nversion: 2.0.0\n") << QString() << QString();
    QTest::newRow("empty file") << QByteArray() << QString() << QString();
}

void CFirmwareImageTest::parses()
{
    QFETCH(QByteArray, beginning);
    const CFirmwareImage image = CFirmwareImage::parse(beginning);
    QTEST(image.version, "version");
    QTEST(image.model, "model");
}

QTEST_GUILESS_MAIN(CFirmwareImageTest)
#include "tst_firmwareimage.moc"
