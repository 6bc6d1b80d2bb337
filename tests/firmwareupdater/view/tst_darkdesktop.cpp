#include "view/treerow.h"
#include "viewfixture.h"

#include <QHeaderView>
#include <QStyleFactory>
#include <QtTest>

#include <cmath>

using namespace TestSupport;
using namespace Plugin::FirmwareUpdater::Internal::View;

/// The wizard's pages where the application's colors are dark: they stay white, and everything on
/// them can be read. Measured on the painted pages.
class CDarkDesktopTest : public QObject
{
    Q_OBJECT

private slots:
    void pagesStayReadable();

private:
    void measurePage(QDialog &page);
    void measureTree(QTreeView &tree);
    /// Notes @p name unless something within @p place of @p widget contrasts with a light
    /// background. Of a link only its color counts.
    void measure(const QString &name, const QWidget &widget, QRect place, bool isEnabled,
                 bool isLink = false);

    QDialog *m_page = nullptr;
    QImage m_picture;
    int m_measured = 0;
    QStringList m_unreadable;
};

/// From 0 for black to 1 for white, as people see it.
static double getLuminance(QRgb color)
{
    const auto getPart = [](int value) { return std::pow(value / 255.0, 2.2); };
    return 0.2126 * getPart(qRed(color)) + 0.7152 * getPart(qGreen(color))
        + 0.0722 * getPart(qBlue(color));
}

void CDarkDesktopTest::measure(const QString &name, const QWidget &widget, QRect place,
                               bool isEnabled, bool isLink)
{
    place &= widget.visibleRegion().boundingRect();
    place.moveTo(widget.mapTo(m_page, place.topLeft()));
    double sum = 0;
    double lightest = 0;
    double darkest = 1;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QRgb color = m_picture.pixel(x, y);
            const double luminance = getLuminance(color);
            sum += luminance;
            lightest = qMax(lightest, luminance);
            if (!isLink || qBlue(color) - qRed(color) > 60)
                darkest = qMin(darkest, luminance);
        }
    }
    ++m_measured;
    const double contrast = (lightest + 0.05) / (darkest + 0.05);
    if (sum < 0.5 * place.width() * place.height() || contrast < (isEnabled ? 4.5 : 3))
        m_unreadable.append(QString("%1: %2").arg(name).arg(contrast));
}

void CDarkDesktopTest::measureTree(QTreeView &tree)
{
    const bool hasBoxes = qobject_cast<CCameraSelectionDialog *>(m_page)
        || qobject_cast<CUpdateSummaryDialog *>(m_page);
    for (QModelIndex index = tree.model()->index(0, 0); index.isValid();
         index = tree.indexBelow(index)) {
        const CTreeRow row(index);
        // Where the box ends and the text begins.
        int split = !hasBoxes || row.isTransportLayer() ? 0 : row.isDirectCamera() ? 38 : 18;
        for (int column = 0; column < tree.model()->columnCount(); ++column) {
            const QRect cell = tree.visualRect(index.siblingAtColumn(column));
            if (cell.isEmpty())
                continue;
            const QString name = QString("%1, %2").arg(index.data().toString()).arg(column);
            const bool isEnabled = row.getEntity()->isEnabled();
            if (split > 0)
                measure(name + " box", *tree.viewport(),
                        QRect(cell.topLeft(), QSize(split, cell.height())), isEnabled);
            measure(name, *tree.viewport(), cell.adjusted(split, 0, 0, 0), isEnabled);
            split = 0;
        }
    }
    const QHeaderView *const header = tree.header();
    for (int section = 0; section < header->count(); ++section)
        if (const int width = header->sectionSize(section))
            measure(QString("title %1").arg(section), *header->viewport(),
                    QRect(header->sectionViewportPosition(section), 0, width, 25), true);
}

void CDarkDesktopTest::measurePage(QDialog &page)
{
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    m_page = &page;
    m_picture = QImage(page.size(), QImage::Format_RGB32);
    page.render(&m_picture);
    if (QTreeView *const tree = getTree(page))
        measureTree(*tree);
    for (const QWidget *const widget : page.findChildren<QWidget *>()) {
        const QString text = widget->property("text").toString();
        const bool isButton = widget->inherits("QPushButton");
        if (!widget->isVisible() || widget->inherits("QProgressBar")
            || (text.isEmpty() && !isButton))
            continue;
        // The frame around a field or a button is no part of its text.
        const int frame = isButton || widget->inherits("QLineEdit") ? 4 : 0;
        const QRect place = widget->rect().adjusted(frame, frame, -frame, -frame);
        measure(text, *widget, place, widget->isEnabled());
        if (text.contains("<a "))
            measure("link in " + text, *widget, place, true, true);
    }
    page.hide();
}

void CDarkDesktopTest::pagesStayReadable()
{
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Link, QColor(130, 190, 255));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        dark.setColor(role, Qt::white);
        dark.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    }
    QApplication::setStyle(QStyleFactory::create("fusion"));
    QApplication::setPalette(dark);

    CPages pages;
    pages.fill(3, "http");
    // A ticked camera, one that is not ticked, and one that cannot be.
    const ModelPtr tree = makeTree();
    TestSupport::CUpdaterFixture::tick(*tree, findRow(*tree, "Camera a1"));
    pages.selection.setModel(tree);
    pages.selection.updateNextButton(false);
    pages.file.updateFileSelection("/tmp/update.guf");
    pages.update.enableButtons(false);
    for (QDialog *const page : pages.all)
        measurePage(*page);

    QCOMPARE(m_unreadable.join('\n'), QString());
    QVERIFY(m_measured > 80);
}

QTEST_MAIN(CDarkDesktopTest)
#include "tst_darkdesktop.moc"
