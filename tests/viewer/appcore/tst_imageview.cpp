#include "viewer/appcore/imageview.h"

#include <QtTest>

using Viewer::AppCore::CImageView;

class CImageViewTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheAspect_data();
    void keepsTheAspect();
    void placeholderTakesTheImageAway();
};

static QImage makeImage(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

// The part of the view that shows the red image.
static QRect redArea(CImageView &view)
{
    const QImage picture = view.grab().toImage();
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == QColor(Qt::red))
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

void CImageViewTest::keepsTheAspect_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QRect>("shown");
    QTest::newRow("enlarged, bars left and right") << QSize(40, 40) << QRect(100, 0, 200, 200);
    QTest::newRow("reduced, bars above and below") << QSize(4000, 1000) << QRect(0, 50, 400, 100);
    QTest::newRow("fits exactly") << QSize(400, 200) << QRect(0, 0, 400, 200);
    QTest::newRow("one pixel") << QSize(1, 1) << QRect(100, 0, 200, 200);
}

void CImageViewTest::keepsTheAspect()
{
    QFETCH(const QSize, image);
    QFETCH(const QRect, shown);
    CImageView view;
    view.resize(400, 200);
    view.setImage(makeImage(image));
    QCOMPARE(redArea(view), shown);
}

void CImageViewTest::placeholderTakesTheImageAway()
{
    CImageView view;
    view.resize(400, 200);
    view.setImage(makeImage({40, 40}));
    QVERIFY(view.hasImage());
    view.setPlaceholder("No camera", "Select one");
    QVERIFY(!view.hasImage());
    QVERIFY(redArea(view).isNull());
    const QImage withText = view.grab().toImage();
    view.setPlaceholder({}, {});
    QVERIFY2(withText != view.grab().toImage(), "the text is not painted");
}

QTEST_MAIN(CImageViewTest)

#include "tst_imageview.moc"
