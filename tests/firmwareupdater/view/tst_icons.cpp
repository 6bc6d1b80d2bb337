#include "style/icons.h"
#include "view/cameraselectiondialog.h"
#include "view/firmwareupdatedialog.h"
#include "view/resultsummarydialog.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"

#include <QLabel>
#include <QtTest>

using namespace Plugin::FirmwareUpdater::Internal;

/// Runs at device pixel ratio 1 and, as a second test, at 2.
class CIconsTest : public QObject
{
    Q_OBJECT

private slots:
    void haveTheirSize_data();
    void haveTheirSize();
    void areSharpInDialogs();
};

void CIconsTest::haveTheirSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("info_icon_24x24_en") << QSize(24, 24);
    QTest::newRow("warning_icon_24x24_en") << QSize(24, 24);
    QTest::newRow("error_icon_24x24_en") << QSize(24, 24);
    QTest::newRow("refresh_green_icon_16x16_en") << QSize(16, 16);
    QTest::newRow("refresh_black_icon_14x12_en") << QSize(14, 12);
    QTest::newRow("update_ok_icon_12x8_en") << QSize(12, 8);
    QTest::newRow("update_failed_icon_12x11_en") << QSize(12, 11);
    QTest::newRow("update_skipped_icon_12x3_en") << QSize(12, 3);
    QTest::newRow("sort_icon_10x7_en") << QSize(10, 7);
    QTest::newRow("firmware_updater_icon_16x16_en") << QSize(16, 16);
    QTest::newRow("help_icon_32x32_en") << QSize(32, 32);
}

void CIconsTest::haveTheirSize()
{
    QFETCH(QSize, size);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(QPixmap(QStringLiteral(":/firmwareupdater/icons/") + name).size(), size);
    const QPixmap pixmap = Style::getIconPixmap(name);
    QCOMPARE(pixmap.devicePixelRatio(), qGuiApp->devicePixelRatio());
    QCOMPARE(pixmap.size(), size * qGuiApp->devicePixelRatio());
}

void CIconsTest::areSharpInDialogs()
{
    const View::CCameraSelectionDialog first;
    const View::CUpdateSelectionDialog second;
    const View::CUpdateSummaryDialog third;
    const View::CFirmwareUpdateDialog fourth;
    const View::CResultSummaryDialog fifth;
    int pictures = 0;
    for (const QDialog *dialog :
         std::initializer_list<const QDialog *>{&first, &second, &third, &fourth, &fifth}) {
        const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
            if (!pixmap.isNull()) {
                ++pictures;
                QCOMPARE(pixmap.size(), QSize(24, 24) * qGuiApp->devicePixelRatio());
            }
        }
    }
    QCOMPARE(pictures, 1 + 2 + 4 + 2 + 4);
}

QTEST_MAIN(CIconsTest)
#include "tst_icons.moc"
