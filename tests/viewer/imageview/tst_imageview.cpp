#include "testframes.h"
#include "viewer/image/framevalues.h"
#include "viewer/imageview/elidedlabel.h"
#include "viewer/imageview/imagegrid.h"
#include "viewer/imageview/imagetile.h"
#include "viewer/imageview/imageview.h"

#include <QSignalSpy>
#include <QtTest>
#include <QWheelEvent>

#include <atomic>

using namespace Viewer::ImageView;
using Viewer::Image::CFrame;
using Viewer::Image::getPixel;

/// Real events on a real tile, which gets frames as from a camera.
class CImageViewTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void zoomsAndPans();
    void tellsPixels_data();
    void tellsPixels();
    void marksAndCounts();
    void showsWhyThereIsNoImage();
    void newestFrameIsShownAndFewAreHeld();
    void savesAllBits();
    void tellsRates();
    void arrangesUpToNine();

private:
    void showFrame(const CFrame &frame);
    void wheel(const QPoint &position, int steps);
    void moveTo(const QPoint &place)
    {
        QTest::mouseMove(m_tile->windowHandle(), m_view->mapTo(m_tile.get(), place));
    }
    QImage grab() { return m_view->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QString getText(const char *label) const
    {
        return m_tile->findChild<CElidedLabel *>(label)->getText();
    }

    std::unique_ptr<CImageTile> m_tile;
    CImageView *m_view = nullptr;
};

void CImageViewTest::init()
{
    m_tile = std::make_unique<CImageTile>();
    m_tile->resize(600, 400);
    m_tile->setName("Camera 1");
    m_tile->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_tile.get()));
    m_view = m_tile->getView();
}

void CImageViewTest::showFrame(const CFrame &frame)
{
    m_tile->showFrame(frame);
    QTRY_VERIFY(m_view->hasImage());
    QTRY_COMPARE(m_view->getImage().size(), QSize(frame.width, frame.height));
    QCoreApplication::processEvents(); // the footer takes its room
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void CImageViewTest::wheel(const QPoint &position, int steps)
{
    moveTo(position);
    QWheelEvent event(position, m_view->mapToGlobal(position), {}, {0, 120 * steps}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_view, &event);
}

void CImageViewTest::zoomsAndPans()
{
    showFrame(TestFrames::makeFrame("Mono8", 400, 300));
    const double fit = m_view->getZoom();
    QCOMPARE(fit, qMin(m_view->width() / 400.0, m_view->height() / 300.0));
    const QImage fitted = grab();
    const QPoint place(200, 100);
    const QPointF under = m_view->toImage(place);
    for (const int steps : {3, 5, -2, 4}) {
        wheel(place, steps);
        const QPointF now = m_view->toImage(place);
        QVERIFY2((now - under).manhattanLength() <= 1, qPrintable(QString::number(steps)));
    }
    QVERIFY(m_view->getZoom() > 8 * fit);
    const QPointF before = m_view->toImage(place);
    QWindow *const window = m_tile->windowHandle();
    const QPoint inWindow = m_view->mapTo(m_tile.get(), place);
    QTest::mousePress(window, Qt::LeftButton, {}, inWindow);
    QTest::mouseMove(window, inWindow + QPoint(70, 50));
    QTest::mouseRelease(window, Qt::LeftButton, {}, inWindow + QPoint(70, 50));
    QVERIFY((m_view->toImage(place + QPoint(70, 50)) - before).manhattanLength() <= 1);
    const double left = m_view->toImage({}).x();
    QTest::keyClick(m_view, Qt::Key_Right);
    QVERIFY(m_view->toImage({}).x() > left);
    wheel(place, 100);
    QCOMPARE(m_view->getZoom(), 32.0);
    wheel(place, -100);
    QCOMPARE(m_view->getZoom(), 1.0);
    // Pixel by pixel what the frame has.
    m_view->showOriginalSize();
    const QPointF corner = m_view->toImage({});
    const QPoint pixel = corner.toPoint() + place;
    QCOMPARE(qGray(grab().pixel(place)), qGray(m_view->getImage().pixel(pixel)));
    m_view->fit();
    QCOMPARE(grab(), fitted);
}

void CImageViewTest::tellsPixels_data()
{
    QTest::addColumn<QString>("format");
    for (const char *const format : {"Mono8", "Mono12p", "BayerRG10Packed", "RGB8"})
        QTest::newRow(format) << QString(format);
}

void CImageViewTest::tellsPixels()
{
    QFETCH(QString, format);
    const CFrame frame = TestFrames::makeFrame(format, 64, 48);
    showFrame(frame);
    const QPoint place(250, 130);
    moveTo({1, 1});
    moveTo(place);
    // The footer, which comes with the image, may take room from the view yet.
    const auto getExpected = [&] {
        const QPointF inImage = m_view->toImage(place);
        const QPoint pixel(int(inImage.x()), int(inImage.y()));
        QStringList values;
        for (const int value : getPixel(frame, pixel.x(), pixel.y()))
            values.append(QString::number(value));
        return QString("(%1, %2): %3").arg(pixel.x()).arg(pixel.y()).arg(values.join(", "));
    };
    QTRY_COMPARE(getText("pixelLabel"), getExpected());
    // Also of an image that has come since.
    showFrame(TestFrames::makeFrame(format, 64, 48, 0, [](int, int) {
        return TestFrames::Color{0, 0, 0};
    }));
    QTRY_VERIFY(getText("pixelLabel").endsWith(": 0") || getText("pixelLabel").endsWith(", 0, 0"));
    moveTo({1, 1});
    QTRY_COMPARE(getText("pixelLabel"), QString());
}

void CImageViewTest::marksAndCounts()
{
    showFrame(TestFrames::makeFrame("Mono8", 64, 48, 0, [](int x, int) {
        return x < 32 ? TestFrames::Color{1, 1, 1} : TestFrames::Color{0, 0, 0};
    }));
    const QImage plain = grab();
    const QPoint white(m_view->width() / 4, m_view->height() / 2);
    const QPoint black(m_view->width() * 3 / 4, m_view->height() / 2);
    QCOMPARE(plain.pixelColor(white), QColor(Qt::white));
    m_tile->setOptions(true, false);
    QTRY_VERIFY(grab().pixelColor(white) != QColor(Qt::white));
    QCOMPARE(grab().pixelColor(black), QColor(Qt::black));
    m_tile->setOptions(false, true);
    // Half of the pixels are white, half are black: two columns as high as the panel.
    const auto getGray = [this](int x) {
        return qGray(grab().pixel(m_view->width() - 272 + x, m_view->height() - 112 + 60));
    };
    QTRY_VERIFY(getGray(4) > 200);
    QVERIFY(getGray(132) < 100);
    m_tile->setOptions(false, false);
    QTRY_COMPARE(grab(), plain);
}

void CImageViewTest::showsWhyThereIsNoImage()
{
    CFrame frame = TestFrames::makeFrame("Mono8", 64, 48);
    showFrame(frame);
    frame.size = 100;
    m_tile->showFrame(frame);
    QTRY_VERIFY(!m_view->hasImage());
    QVERIFY2(m_view->accessibleDescription().contains("has 100 of the 3072 bytes"),
             qPrintable(m_view->accessibleDescription()));
    showFrame(TestFrames::makeFrame("Mono8", 64, 48));
}

void CImageViewTest::newestFrameIsShownAndFewAreHeld()
{
    std::atomic_int held = 0;
    const auto send = [&](int width) {
        CFrame frame = TestFrames::makeFrame("Mono8", width, 50);
        ++held;
        frame.memory = std::shared_ptr<const void>(
            frame.data, [&held, memory = frame.memory](const void *) { --held; });
        m_tile->showFrame(frame);
    };
    send(100);
    QTRY_COMPARE(m_view->getImage().width(), 100);
    for (int i = 1; i <= 20; ++i) {
        send(100 + i);
        QVERIFY2(held <= 3, qPrintable(QString::number(i)));
    }
    QTRY_COMPARE(m_view->getImage().width(), 120);
    QTRY_COMPARE(held, 1);
    m_tile->addStatistics({}, 3);
    // The first and the last one were shown.
    QVERIFY(m_tile->findChild<CElidedLabel *>("ratesLabel")->toolTip().endsWith("not shown: 21"));
    m_tile->setPlaceholder("title", "hint");
    QTRY_COMPARE(held, 0);
}

void CImageViewTest::savesAllBits()
{
    const CFrame frame = TestFrames::makeFrame("Mono12", 64, 48);
    showFrame(frame);
    QSignalSpy spy(m_tile.get(), &CImageTile::pictureReady);
    m_tile->requestPicture();
    const QImage image = QImage::fromData(spy.value(0).value(0).toByteArray());
    QCOMPARE(image.format(), QImage::Format_Grayscale16);
    for (int x = 0; x < 64; ++x) {
        QCOMPARE(QVector<int>{reinterpret_cast<const quint16 *>(image.constScanLine(20))[x]},
                 getPixel(frame, x, 20));
    }
    QVERIFY(spy.value(0).value(1).toString().startsWith("Camera_1_"));
}

void CImageViewTest::tellsRates()
{
    CStreamRates rates;
    QCOMPARE(rates.getText(), QString());
    rates.add({100, 200'000'000, 1, 5, 2}, 10, 1000);
    QCOMPARE(rates.getText(), QString());
    rates.add({150, 300'000'000, 2, 9, 2}, 13, 3000);
    QCOMPARE(rates.getText(),
             "25.0 frames/s, 50.0 MB/s, packets resent: 4, frames incomplete: 1, frames not shown: "
             "3");
    QCOMPARE(rates.getTotals().section('\n', 1),
             "frames: 150\ndata: 300.0 MB\nresent packets: 9\nlost packets: 2\nincomplete frames: "
             "2\nframes not shown: 13");
    // Started again.
    rates.add({10, 1'000'000, 0, 0, 0}, 0, 4000);
    QCOMPARE(rates.getText(), QString());
}

void CImageViewTest::arrangesUpToNine()
{
    CImageGrid grid;
    grid.resize(900, 900);
    grid.show();
    QVERIFY(QTest::qWaitForWindowExposed(&grid));
    QCOMPARE(grid.getShownIds(), QStringList(QString()));
    const QList<QSize> grids{{1, 1}, {2, 1}, {2, 2}, {2, 2}, {3, 2},
                             {3, 2}, {3, 3}, {3, 3}, {3, 3}};
    QStringList ids;
    for (const QSize &cells : grids) {
        ids.append(QString::number(ids.size()));
        grid.setAcquiring(ids.last(), "Camera", true);
        QCOMPARE(grid.getShownIds(), ids);
        QTRY_COMPARE(grid.findTile(ids.last())->width(), 900 / cells.width());
        QCOMPARE(grid.findTile(ids.last())->height(), 900 / cells.height());
    }
    grid.setAcquiring("tenth", "Camera", true);
    QCOMPARE(grid.getShownIds(), ids);
    grid.setSelected("tenth", "Camera");
    QCOMPARE(grid.getShownIds(), ids.mid(0, 8) + QStringList("tenth"));
    grid.setSelected("idle", "Camera");
    QCOMPARE(grid.getShownIds(), ids.mid(0, 8) + QStringList("idle"));

    QSignalSpy spy(&grid, &CImageGrid::cameraActivated);
    QTest::mouseClick(grid.findTile("4")->getView(), Qt::LeftButton);
    QTest::keyClick(grid.findTile("5")->getView(), Qt::Key_Space);
    QCOMPARE(spy, (QList<QVariantList>{{"4"}, {"5"}}));
    // The selected one is framed, and no other.
    grid.setSelected("4", "Camera");
    const QColor color = grid.palette().color(QPalette::Active, QPalette::Highlight);
    for (const QString &id : grid.getShownIds())
        QCOMPARE(grid.findTile(id)->grab().toImage().pixelColor(0, 100) == color, id == "4");
    for (const QString &id : ids.mid(1))
        grid.setAcquiring(id, "Camera", false);
    QCOMPARE(grid.getShownIds(), QStringList({"0", "tenth", "4"}));
}

QTEST_MAIN(CImageViewTest)

#include "tst_imageview.moc"
