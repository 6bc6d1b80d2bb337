#include "constants.h"
#include "style/treeviewheaderstyle.h"
#include "view/delegate/treeviewcameraselectiondelegate.h"
#include "view/delegate/treeviewdetailsdelegate.h"
#include "view/delegate/treeviewlabeldelegate.h"
#include "view/delegate/treeviewresultdelegate.h"
#include "view/delegate/treeviewstatusdelegate.h"
#include "viewfixture.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyleOptionHeader>
#include <QtTest>

using namespace TestSupport;
using namespace Plugin::FirmwareUpdater;
using namespace Internal::View;
using Cell = QStyleOptionViewItem;
using Header = QStyleOptionHeader;

/// What the cells and the header of the camera tree look like, with different numbers of device
/// pixels per pixel.
class CTreePaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cellsShowTheirState();
    void cellsLookTheSameInAView();
    void backgroundsBeginWhereTheKindOfRowSays();
    void boxesShowTheTick();
    void textsKeepTheirIndent();
    void textsOfARowStandOnOneLine();
    void iconsAreDrawnPixelByPixel();
    void onlyTheUpdatedCameraIsBold();
    void longTextsEndBeforeTheSeparator();
    void headerSectionsShowTheirState();
    void headerTitlesStayInTheirSections();

private:
    /// The cell with a box, or with a text in @p column 4 to 7, of a row of the tree or the list.
    QModelIndex cell(const char *name, int column = 0) const;
    QImage makeImage(const QSize &size) const;
    QImage show(const QModelIndex &cell, int state = 0, int position = Cell::OnlyOne,
                const QSize &size = {200, 20}) const;
    /// The names of the colors at @p points.
    static QString describe(const QImage &image, const QVector<QPoint> &points);

    qreal m_ratio = 1;
    ModelPtr m_tree;
    ModelPtr m_list;
    const QHash<int, QSharedPointer<QAbstractItemDelegate>> m_delegates{
        {0, QSharedPointer<CTreeViewCameraSelectionDelegate>::create()},
        {4, QSharedPointer<CTreeViewLabelDelegate>::create()},
        {5, QSharedPointer<CTreeViewDetailsDelegate>::create()},
        {6, QSharedPointer<CTreeViewStatusDelegate>::create()},
        {7, QSharedPointer<CTreeViewResultDelegate>::create()}};
};

static Entity *getEntity(const QModelIndex &cell)
{
    return static_cast<Entity *>(cell.internalPointer());
}

void CTreePaintingTest::initTestCase_data()
{
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1., 1.25, 1.5, 2.})
        QTest::addRow("%d %%", int(ratio * 100)) << ratio;
}

void CTreePaintingTest::init()
{
    QFETCH_GLOBAL(qreal, ratio);
    m_ratio = ratio;
    m_tree = makeTree();
    m_list = makeList(3);
    for (int row = 0; row < 3; ++row)
        m_list->setData(m_list->index(row, 4), "10.20.30", Qt::EditRole);
}

QModelIndex CTreePaintingTest::cell(const char *name, int column) const
{
    const QModelIndex index = findRow(*m_tree, name);
    return (index.isValid() ? index : findRow(*m_list, name)).siblingAtColumn(column);
}

QImage CTreePaintingTest::makeImage(const QSize &size) const
{
    QImage image(size * m_ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(m_ratio);
    image.fill(Qt::white);
    return image;
}

QImage CTreePaintingTest::show(const QModelIndex &cell, int state, int position,
                               const QSize &size) const
{
    // What is painted beside the cell is not in the picture.
    Cell option;
    option.rect = QRect(QPoint(40, 32), size);
    option.state = QStyle::State_Enabled | QStyle::State(state);
    option.viewItemPosition = Cell::ViewItemPosition(position);
    QImage image = makeImage(size + QSize(80, 60));
    QPainter painter(&image);
    m_delegates[cell.column()]->paint(&painter, option, cell);
    painter.end();
    return image.copy(QRect(option.rect.topLeft() * m_ratio, makeImage(size).size()));
}

QString CTreePaintingTest::describe(const QImage &image, const QVector<QPoint> &points)
{
    const QHash<QRgb, QString> names{{Constants::WHITE_COLOR.rgb(), "white"},
                                     {Constants::LIGHT_GREY_COLOR.rgb(), "grey"},
                                     {Constants::GREY_COLOR.rgb(), "rule"},
                                     {Constants::LIGHT_BLUE_COLOR.rgb(), "light"},
                                     {Constants::BLUE_COLOR.rgb(), "blue"},
                                     {Constants::ULTRA_LIGHT_BLUE_COLOR.rgb(), "frame"}};
    QStringList colors;
    for (const QPoint &point : points)
        colors.append(names.value(image.pixel(point * image.devicePixelRatio()), "other"));
    return colors.join(' ');
}

void CTreePaintingTest::cellsShowTheirState()
{
    const auto showAs = [this](const QModelIndex &cell, int state, int position) {
        // The frame of a group's camera begins before its box.
        const int left = cell.parent().parent().isValid() ? 20 : 0;
        return describe(show(cell, state, position),
                        {{150, 10}, {left, 3}, {150, 0}, {199, 10}, {150, 19}});
    };
    const int hover = QStyle::State_MouseOver;
    const int marked = hover | QStyle::State_Selected;
    const QModelIndex group = cell("A");
    const QModelIndex camera = cell("Camera a1");
    const QModelIndex box = cell("Camera c1");
    const QModelIndex text = cell("Camera c1", 4);
    QCOMPARE(showAs(cell("Layer l"), marked, Cell::OnlyOne), "white white white white white");
    QCOMPARE(showAs(group, 0, Cell::Beginning), "white white white grey white");
    QCOMPARE(showAs(group, QStyle::State_Selected, Cell::OnlyOne), "blue white white blue blue");
    QCOMPARE(showAs(camera, hover, Cell::OnlyOne), "light white light light light");
    QCOMPARE(showAs(camera, marked, Cell::OnlyOne), "blue frame frame blue frame");
    QCOMPARE(showAs(box, marked, Cell::Beginning), "blue frame frame grey frame");
    QCOMPARE(showAs(text, 0, Cell::Middle), "white white white grey white");
    QCOMPARE(showAs(text, hover, Cell::End), "light light light light light");
    QCOMPARE(showAs(text, marked, Cell::Beginning), "blue frame frame grey frame");
    QCOMPARE(showAs(text, marked, Cell::Middle), "blue blue frame grey frame");
    QCOMPARE(showAs(text, marked, Cell::End), "blue blue frame frame frame");
    getEntity(text)->setEnabled(false);
    QCOMPARE(showAs(box, marked, Cell::OnlyOne), "grey white grey grey grey");
    QCOMPARE(showAs(text, marked, Cell::End), "grey grey grey grey grey");
}

void CTreePaintingTest::cellsLookTheSameInAView()
{
    CUpdateSummaryDialog dialog;
    dialog.setModel(m_list);
    dialog.show();
    const QRect place = getTree(dialog)->visualRect(cell("Camera c1"));
    QImage image = makeImage(place.size());
    getTree(dialog)->viewport()->render(&image, QPoint(), place);
    QCOMPARE(image, show(cell("Camera c1"), 0, Cell::Beginning, place.size()));
}

void CTreePaintingTest::backgroundsBeginWhereTheKindOfRowSays()
{
    const auto findCorner = [this](const QModelIndex &cell) {
        const QImage image = show(cell, QStyle::State_MouseOver);
        const auto isLight = [](QRgb color) { return color == Constants::LIGHT_BLUE_COLOR.rgb(); };
        return findPixels(image, image.rect(), isLight).topLeft();
    };
    QCOMPARE(findCorner(cell("A")), QPoint(2, 1) * m_ratio);
    QCOMPARE(findCorner(cell("Camera a1")), QPoint(22, 0) * m_ratio);
    // The first one of its group.
    QCOMPARE(findCorner(cell("Camera a2")), QPoint(22, 0) * m_ratio);
    QCOMPARE(findCorner(cell("Camera c0")), QPoint(2, 4) * m_ratio);
    QCOMPARE(findCorner(cell("Camera c1")), QPoint(2, 0) * m_ratio);
    for (const int column : {4, 5, 6, 7}) {
        QCOMPARE(findCorner(cell("A", column)), QPoint(0, 1) * m_ratio);
        QCOMPARE(findCorner(cell("Camera a1", column)), QPoint(0, 0));
        QCOMPARE(findCorner(cell("Camera a2", column)), QPoint(0, 4) * m_ratio);
        QCOMPARE(findCorner(cell("Camera c0", column)), QPoint(0, 4) * m_ratio);
    }
}

void CTreePaintingTest::boxesShowTheTick()
{
    const QImage group = show(cell("A"));
    const QImage other = show(cell("Camera b1"));
    TestSupport::CUpdaterFixture::tick(*m_tree, cell("Camera a1"));
    // A group with one ticked camera looks like one whose cameras are all ticked, and what cannot
    // be ticked looks unticked.
    const QImage ticked = show(cell("A"));
    const QImage unavailable = show(cell("Camera b1"));
    QVERIFY(ticked != group);
    QVERIFY(unavailable != other);
    TestSupport::CUpdaterFixture::tick(*m_tree, cell("Camera a2"));
    QCOMPARE(show(cell("A")), ticked);
    getEntity(cell("Camera b1"))->setSelected(true);
    QCOMPARE(show(cell("Camera b1")), unavailable);
}

void CTreePaintingTest::textsKeepTheirIndent()
{
    const auto findLeft = [this](const QModelIndex &cell, int position = Cell::OnlyOne) -> qreal {
        const QImage image = show(cell, 0, position);
        // Drawn with all the pixels there are.
        const bool isSharp
            = m_ratio == 1 || image.scaled(image.size() / m_ratio).scaled(image.size()) != image;
        return isSharp ? findInk(image, image.rect()).left() / m_ratio : -1;
    };
    const int layerIndent = findLeft(cell("Layer l"));
    QVERIFY(layerIndent >= 1 && layerIndent <= 3);
    QCOMPARE(int(findLeft(cell("A"))), 2);
    QCOMPARE(int(findLeft(cell("Camera a1"))), 22);
    QCOMPARE(int(findLeft(cell("Camera c0"))), 2);
    for (const int column : {4, 5, 6, 7}) {
        const qreal first = findLeft(cell("Camera c1", column), Cell::Beginning);
        QVERIFY(first >= 0);
        for (const auto position : {Cell::Middle, Cell::End}) {
            const qreal indent = findLeft(cell("Camera c1", column), position) - first;
            QVERIFY(qAbs(indent - 11) * m_ratio < 1);
        }
    }
}

void CTreePaintingTest::textsOfARowStandOnOneLine()
{
    // The first row is higher.
    for (const int row : {0, 1}) {
        const auto findBottom = [&](int column) {
            const QImage image
                = show(m_list->index(row, column), 0, Cell::Middle, {200, row == 0 ? 27 : 20});
            // Without boxes and icons.
            return findInk(image, image.rect().adjusted(30 * m_ratio, 0, 0, 0)).bottom();
        };
        const int line = findBottom(4);
        QVERIFY(line > 0);
        QCOMPARE(findBottom(0), line);
        for (const auto result :
             {Entity::EFirmwareUpdateResult::OK, Entity::EFirmwareUpdateResult::Failed}) {
            getEntity(m_list->index(row, 0))->setUpdateResult(result);
            QCOMPARE(findBottom(7), line);
        }
    }
}

void CTreePaintingTest::iconsAreDrawnPixelByPixel()
{
    Entity *const entity = getEntity(cell("Camera c1"));
    const auto isShown = [this](int column, const QString &name) {
        return shows(show(cell("Camera c1", column), 0, Cell::Middle), loadIcon(name, m_ratio));
    };
    entity->setUpdateStatus(Entity::EFirmwareUpdateStatus::Updating);
    QVERIFY(isShown(6, "refresh_black_icon_14x12_en"));
    const QStringList icons{"update_ok_icon_12x8_en", "update_failed_icon_12x11_en",
                            "update_skipped_icon_12x3_en"};
    for (int result = 0; result < icons.count(); ++result) {
        entity->setUpdateResult(Entity::EFirmwareUpdateResult(result));
        QVERIFY(isShown(7, icons[result]));
    }
}

void CTreePaintingTest::onlyTheUpdatedCameraIsBold()
{
    using Status = Entity::EFirmwareUpdateStatus;
    const auto showAs = [this](Status status) {
        getEntity(cell("Camera c1"))->setUpdateStatus(status);
        return show(cell("Camera c1", 4));
    };
    const QImage waiting = showAs(Status::Waiting);
    const QImage updating = showAs(Status::Updating);
    QVERIFY(findInk(updating, updating.rect()).width() > findInk(waiting, waiting.rect()).width());
    QCOMPARE(show(cell("Camera c2", 4)), waiting);
    QCOMPARE(showAs(Status::Complete), waiting);
}

void CTreePaintingTest::longTextsEndBeforeTheSeparator()
{
    getEntity(cell("Camera c1"))->setUpdateResult(Entity::EFirmwareUpdateResult::Failed);
    for (const QModelIndex &index :
         {cell("Camera a1"), cell("Camera c1"), cell("Camera c1", 4), cell("Camera c1", 5),
          cell("Camera c1", 6), cell("Camera c1", 7)}) {
        const auto findEnd = [&](int width) {
            const QImage image = show(index, 0, Cell::Middle, {width, 20});
            return int(findInk(image, image.rect()).right() / m_ratio);
        };
        // All of the text fits into the wide cell, and not into the narrow ones. The separator is
        // two pixels wide.
        QVERIFY(findEnd(300) >= 54);
        QVERIFY(findEnd(53) > 15);
        for (int width = 44; width < 54; ++width)
            QVERIFY(findEnd(width) < width - 3);
    }
}

void CTreePaintingTest::headerSectionsShowTheirState()
{
    Header option;
    option.rect = QRect(20, 0, 60, 40);
    option.palette.setColor(QPalette::Base, Qt::white);
    const int rule = option.fontMetrics.height() + 7;
    const Internal::Style::CTreeViewHeaderStyle style;
    const auto describeSection = [&](QStyle::State state, Header::SectionPosition position) {
        option.state = state;
        option.position = position;
        QImage image = makeImage({120, 40});
        image.fill(Qt::magenta);
        QPainter painter(&image);
        style.drawControl(QStyle::CE_HeaderSection, &option, &painter);
        return describe(
            image,
            {{30, 1}, {30, rule - 1}, {20, rule}, {79, rule}, {30, rule + 2}, {79, rule / 2}});
    };
    QCOMPARE(describeSection({}, Header::Beginning), "white white rule rule white grey");
    QCOMPARE(describeSection({}, Header::OnlyOneSection), "white white rule rule white white");
    QCOMPARE(describeSection(QStyle::State_MouseOver, Header::Middle),
             "light light rule rule white grey");
    QCOMPARE(describeSection(QStyle::State_Sunken, Header::End), "blue blue rule rule white blue");
}

void CTreePaintingTest::headerTitlesStayInTheirSections()
{
    CUpdateSummaryDialog dialog;
    dialog.setModel(m_list);
    dialog.show();
    QHeaderView *const header = getTree(dialog)->header();
    header->setSortIndicatorShown(false);
    for (const int width : {60, 90, 120}) {
        for (int section = 0; section < header->count(); ++section)
            header->resizeSection(section, width);
        QImage image = makeImage(header->size());
        header->render(&image);
        for (const int section : {0, 3, 4, 5}) {
            const int left = header->sectionViewportPosition(section);
            const QRect ink
                = findInk(image, QRect(left * m_ratio, 0, width * m_ratio, 20 * m_ratio));
            const int begin = ink.left() / m_ratio - left - (section == 0 ? 0 : 11);
            QVERIFY(begin >= 0 && begin < 3);
            QVERIFY(int(ink.right() / m_ratio) < left + width - 2);
        }
    }
}

QTEST_MAIN(CTreePaintingTest)
#include "tst_treepainting.moc"
