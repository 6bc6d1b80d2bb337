#include "view/cameraselectiondialog.h"
#include "view/firmwareupdatedialog.h"
#include "view/resultsummarydialog.h"
#include "view/treerow.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"
#include "viewfixture.h"

#include <QHeaderView>
#include <QStyleFactory>
#include <QtTest>

#include <cmath>

using namespace ViewFixture;
using namespace Plugin::FirmwareUpdater::Internal::View;

/// The wizard's pages where the application's colors are dark: they stay white, and everything on
/// them can be read. Measured on the painted pages.
class CDarkDesktopTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void pagesStayReadable_data();
    void pagesStayReadable();
    void cleanup();

private:
    static QPalette makeDarkPalette();
    void measurePage(QDialog &page);
    void measureTree(QTreeView &tree);
    /// Notes @p name when nothing within @p place of @p widget contrasts with a light background,
    /// or no pixel that @p counts.
    template <typename TCounts>
    void measure(const QString &name, const QWidget &widget, QRect place, bool isEnabled,
                 const TCounts &counts);
    void measure(const QString &name, const QWidget &widget, const QRect &place, bool isEnabled);

    const QPalette m_light = QApplication::palette();
    QDialog *m_page = nullptr;
    QImage m_picture;
    int m_measured = 0;
    QStringList m_unreadable;
};

static qreal getLuminance(QRgb color)
{
    const auto linear = [](int value) {
        const qreal part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color))
        + 0.0722 * linear(qBlue(color));
}

static qreal getContrast(QRgb one, QRgb other)
{
    const auto [darker, lighter] = std::minmax({getLuminance(one), getLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette CDarkDesktopTest::makeDarkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Link, QColor(130, 190, 255));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor(127, 127, 127));
    }
    return palette;
}

void CDarkDesktopTest::init()
{
    QApplication::setStyle(QStyleFactory::create("fusion"));
    m_measured = 0;
    m_unreadable.clear();
}

void CDarkDesktopTest::cleanup()
{
    QApplication::setPalette(m_light);
}

template <typename TCounts>
void CDarkDesktopTest::measure(const QString &name, const QWidget &widget, QRect place,
                               bool isEnabled, const TCounts &counts)
{
    place &= widget.visibleRegion().boundingRect();
    place.moveTo(widget.mapTo(m_page, place.topLeft()));
    QHash<QRgb, int> colors;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            ++colors[m_picture.pixel(x, y)];
    QRgb background = 0;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        if (*color > colors.value(background))
            background = color.key();
    qreal contrast = 0;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        if (counts(color.key()))
            contrast = qMax(contrast, getContrast(color.key(), background));
    ++m_measured;
    if (getLuminance(background) < 0.5 || contrast < (isEnabled ? 4.5 : 3))
        m_unreadable.append(QString("%1 %2").arg(name).arg(contrast));
}

void CDarkDesktopTest::measure(const QString &name, const QWidget &widget, const QRect &place,
                               bool isEnabled)
{
    measure(name, widget, place, isEnabled, [](QRgb) { return true; });
}

void CDarkDesktopTest::measureTree(QTreeView &tree)
{
    for (QModelIndex row = tree.model()->index(0, 0); row.isValid(); row = tree.indexBelow(row)) {
        const CTreeRow treeRow(row);
        const bool isEnabled = treeRow.getEntity()->isEnabled();
        // Where the box is, if there is one, and the text behind it.
        const bool hasBox = m_page->inherits(CCameraSelectionDialog::staticMetaObject.className())
            || m_page->inherits(CUpdateSummaryDialog::staticMetaObject.className());
        const int box = !hasBox || treeRow.isTransportLayer() ? 0
            : treeRow.isDirectCamera()                        ? 38
                                                              : 18;
        for (int column = 0; column < tree.model()->columnCount(); ++column) {
            const QModelIndex index = row.siblingAtColumn(column);
            const QRect cell = tree.visualRect(index);
            const QString name = QString("%1, column %2").arg(row.data().toString()).arg(column);
            if (cell.isEmpty())
                continue;
            const int split = column == 0 ? box : 0;
            if (split > 0)
                measure(name + ", box", *tree.viewport(),
                        {cell.topLeft(), QSize(split, cell.height())}, isEnabled);
            measure(name, *tree.viewport(), cell.adjusted(split, 0, 0, 0), isEnabled);
        }
    }
    const QHeaderView *const header = tree.header();
    for (int section = 0; section < header->count(); ++section)
        if (header->sectionSize(section) > 0)
            measure("title", *header->viewport(),
                    {header->sectionViewportPosition(section), 0, header->sectionSize(section), 25},
                    true);
}

void CDarkDesktopTest::measurePage(QDialog &page)
{
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    m_page = &page;
    m_picture = QImage(page.size(), QImage::Format_RGB32);
    page.render(&m_picture);
    if (getTree(page))
        measureTree(*getTree(page));
    const QList<QWidget *> widgets = page.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
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
            measure("link in " + text, *widget, place, true,
                    [](QRgb pixel) { return qBlue(pixel) - qRed(pixel) > 60; });
    }
    page.hide();
}

void CDarkDesktopTest::pagesStayReadable_data()
{
    QTest::addColumn<bool>("isDarkAtStart");
    QTest::addRow("dark before the pages are made") << true;
    QTest::addRow("dark while the pages exist") << false;
}

void CDarkDesktopTest::pagesStayReadable()
{
    QFETCH(bool, isDarkAtStart);
    if (isDarkAtStart)
        QApplication::setPalette(makeDarkPalette());
    CCameraSelectionDialog selection;
    CUpdateSelectionDialog file;
    CUpdateSummaryDialog summary;
    CFirmwareUpdateDialog update;
    CResultSummaryDialog result;

    // A ticked camera, one that is not, and those of another model, which cannot be ticked.
    const auto tree = ModelPtr::create(nullptr);
    tree->setTransportLayerInfoVector(
        {TestSupport::makeLayer("l", {{"a1", "A"}, {"a2", "A"}, {"b1", "B"}})});
    const QModelIndex ticked = findRow(*tree, "Camera a1");
    tree->setData(ticked, true, Qt::EditRole);
    tree->updateAllNodesBySelection(ticked);
    selection.setModel(tree);
    selection.updateNextButton(false);

    file.setKorvaneSupportUrl("https://a.example");
    file.updateFileSelection("/tmp/update.guf");
    file.updateFirmwareUpdateInfo(
        {QSharedPointer<TestSupport::CFakeUpdateInfo>::create("2.0", "Fixes", "https://a.example")},
        false);
    file.updateCompatibility(false, false);

    const ModelPtr list = makeList(3);
    for (int row = 0; row < list->rowCount(); ++row) {
        list->setData(list->index(row, 4), "2.0", Qt::EditRole);
        list->setData(list->index(row, 6), row, Qt::EditRole);
        list->setData(list->index(row, 7), row, Qt::EditRole);
    }
    summary.setModel(list);
    summary.updateDowngradeInfo(true);
    summary.updateSidegradeInfo(true);
    update.setModel(list);
    update.updateOverallProgress(1, 3);
    update.updateProgress(1, 2);
    update.enableButtons(false);
    update.hide();
    result.setModel(list);
    result.setInfoTextData("https://a.example", "/tmp/update.log");
    result.setErrorTextData("The camera does not answer", false);
    result.updateView();

    QApplication::setPalette(makeDarkPalette());
    for (QDialog *const page :
         std::initializer_list<QDialog *>{&selection, &file, &summary, &update, &result})
        measurePage(*page);
    QCOMPARE(m_unreadable.join('\n'), QString());
    QVERIFY(m_measured > 80);
}

QTEST_MAIN(CDarkDesktopTest)
#include "tst_darkdesktop.moc"
