#include "constants.h"
#include "style/treeviewheaderstyle.h"
#include "view/treeviewcameraselectiondelegate.h"
#include "view/treeviewdetailsdelegate.h"
#include "view/treeviewlabeldelegate.h"
#include "view/treeviewresultdelegate.h"
#include "view/treeviewstatusdelegate.h"
#include "view/updatesummarydialog.h"
#include "viewfixture.h"

#include <QHeaderView>
#include <QStyleOptionHeader>
#include <QtTest>

using namespace ViewFixture;
using namespace Plugin::FirmwareUpdater;
using namespace Internal::Style;
using namespace Internal::View;

using Cell = QStyleOptionViewItem;

/// What the cells and the header of the camera tree look like, with one and with two device pixels
/// per pixel.
class CTreePaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cellsShowTheirState();
    void backgroundsBeginWhereTheKindOfRowSays();
    void boxesShowTheTick();
    void textsKeepTheirIndent();
    void onlyTheUpdatedCameraIsBold();
    void longTextsEndBeforeTheSeparator();
    void headerSectionsShowTheirState();
    void headerTitlesStayInTheirSections();

private:
    /// The row "Layer l", "A", "Camera a1", ... of the whole tree, or "Camera c0", ... of the list.
    QModelIndex row(const char *name) const;
    Entity *entity(const char *name) const;
    /// The names of the colors at @p points.
    static QString describe(const QImage &image, const QVector<QPoint> &points);

    ModelPtr m_model;
    ModelPtr m_list;
    const CTreeViewCameraSelectionDelegate m_camera;
    const CTreeViewLabelDelegate m_label;
    const CTreeViewDetailsDelegate m_details;
    const CTreeViewStatusDelegate m_status;
    const CTreeViewResultDelegate m_result;
    /// The text delegates, and a column for each.
    const std::vector<std::pair<const QAbstractItemDelegate *, int>> m_texts{
        {&m_label, 0}, {&m_details, 5}, {&m_status, 6}, {&m_result, 7}};
};

void CTreePaintingTest::init()
{
    m_model = ModelPtr::create(nullptr);
    m_model->setTransportLayerInfoVector(
        {TestSupport::makeLayer("l", {{"a1", "A"}, {"a2", "A"}, {"b1", "B"}})});
    m_list = makeList(3);
}

QModelIndex CTreePaintingTest::row(const char *name) const
{
    const QModelIndex index = findRow(*m_model, name);
    return index.isValid() ? index : findRow(*m_list, name);
}

Entity *CTreePaintingTest::entity(const char *name) const
{
    return static_cast<Entity *>(row(name).internalPointer());
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
    const auto show = [this](const char *name, int state, int position, int column = 0) {
        // The frame of a group's camera begins before its box.
        const int left = QString(name) == "Camera a1" ? 20 : 0;
        const QAbstractItemDelegate *const delegate
            = column == 0 ? static_cast<const QAbstractItemDelegate *>(&m_camera) : &m_label;
        QStringList shown;
        for (const int ratio : {1, 2}) {
            const QImage image
                = paint(*delegate, row(name).siblingAtColumn(column), ratio, state, position);
            shown.append(describe(image, {{150, 10}, {left, 3}, {150, 0}, {199, 10}, {150, 19}}));
        }
        shown.removeDuplicates();
        return shown.join(", but with double resolution ");
    };
    const int hovered = QStyle::State_MouseOver;
    const int marked = hovered | QStyle::State_Selected;
    QCOMPARE(show("Layer l", marked, Cell::OnlyOne), "white white white white white");
    QCOMPARE(show("A", 0, Cell::Beginning), "white white white grey white");
    QCOMPARE(show("A", QStyle::State_Selected, Cell::OnlyOne), "blue white white blue blue");
    QCOMPARE(show("Camera a1", hovered, Cell::OnlyOne), "light white light light light");
    QCOMPARE(show("Camera a1", marked, Cell::OnlyOne), "blue frame frame blue frame");
    QCOMPARE(show("Camera c1", marked, Cell::Beginning), "blue frame frame grey frame");
    QCOMPARE(show("Camera c1", 0, Cell::Middle, 4), "white white white grey white");
    QCOMPARE(show("Camera c1", hovered, Cell::End, 4), "light light light light light");
    QCOMPARE(show("Camera c1", marked, Cell::Beginning, 4), "blue frame frame grey frame");
    QCOMPARE(show("Camera c1", marked, Cell::Middle, 4), "blue blue frame grey frame");
    QCOMPARE(show("Camera c1", marked, Cell::End, 4), "blue blue frame frame frame");
    entity("Camera c1")->setEnabled(false);
    QCOMPARE(show("Camera c1", marked, Cell::OnlyOne), "grey white grey grey grey");
    QCOMPARE(show("Camera c1", marked, Cell::End, 4), "grey grey grey grey grey");
}

void CTreePaintingTest::backgroundsBeginWhereTheKindOfRowSays()
{
    const auto findCorner = [this](const QAbstractItemDelegate &delegate, const char *name) {
        QVector<QPoint> corners;
        for (const int ratio : {1, 2}) {
            const QImage image
                = paint(delegate, row(name), ratio, QStyle::State_MouseOver, Cell::OnlyOne);
            const QRect fill = findPixels(image, image.rect(), [](QRgb pixel) {
                return pixel == Constants::LIGHT_BLUE_COLOR.rgb();
            });
            corners.append(fill.topLeft() * 2 / ratio);
        }
        return corners.at(0) == corners.at(1) ? corners.at(0) / 2 : QPoint(-1, -1);
    };
    QCOMPARE(findCorner(m_camera, "A"), QPoint(2, 1));
    QCOMPARE(findCorner(m_camera, "Camera a1"), QPoint(22, 0));
    QCOMPARE(findCorner(m_camera, "Camera a2"), QPoint(22, 0));
    QCOMPARE(findCorner(m_camera, "Camera c0"), QPoint(2, 4));
    QCOMPARE(findCorner(m_camera, "Camera c1"), QPoint(2, 0));
    for (const auto &[delegate, column] : m_texts) {
        QCOMPARE(findCorner(*delegate, "A"), QPoint(0, 1));
        QCOMPARE(findCorner(*delegate, "Camera a2"), QPoint(0, 4));
        QCOMPARE(findCorner(*delegate, "Camera a1"), QPoint(0, 0));
        QCOMPARE(findCorner(*delegate, "Camera c0"), QPoint(0, 4));
    }
}

void CTreePaintingTest::boxesShowTheTick()
{
    for (const int ratio : {1, 2}) {
        const auto show
            = [&](const char *name) { return paint(m_camera, row(name), ratio, 0, Cell::OnlyOne); };
        const auto tick = [&](const char *name) {
            m_model->setData(row(name), !entity(name)->isSelected(), Qt::EditRole);
            m_model->updateAllNodesBySelection(row(name));
        };
        const QImage group = show("A");
        const QImage other = show("Camera b1");
        tick("Camera a1");
        // A group with one ticked camera looks like one whose cameras are all ticked, and what
        // cannot be ticked looks unticked.
        const QImage ticked = show("A");
        const QImage unavailable = show("Camera b1");
        QVERIFY(ticked != group);
        QVERIFY(unavailable != other);
        tick("Camera a2");
        QCOMPARE(show("A"), ticked);
        entity("Camera b1")->setSelected(true);
        QCOMPARE(show("Camera b1"), unavailable);
        entity("Camera b1")->setSelected(false);
        tick("Camera a1");
        tick("Camera a2");
        QCOMPARE(show("A"), group);
        QCOMPARE(show("Camera b1"), other);
    }
}

void CTreePaintingTest::textsKeepTheirIndent()
{
    for (const int ratio : {1, 2}) {
        const auto findLeft = [&](const QAbstractItemDelegate &delegate, const QModelIndex &index,
                                  Cell::ViewItemPosition position) {
            const QImage image = paint(delegate, index, ratio, 0, position);
            return findInk(image, image.rect()).left();
        };
        // The first letter or box may begin a pixel behind its place.
        QCOMPARE(findLeft(m_camera, row("Layer l"), Cell::OnlyOne) / ratio / 2, 1);
        QCOMPARE(findLeft(m_camera, row("A"), Cell::OnlyOne) / ratio, 2);
        QCOMPARE(findLeft(m_camera, row("Camera a1"), Cell::OnlyOne) / ratio, 22);
        QCOMPARE(findLeft(m_camera, row("Camera c0"), Cell::Beginning) / ratio, 2);
        for (const auto &[delegate, column] : m_texts) {
            const QModelIndex index = row("Camera c1").siblingAtColumn(column);
            const int first = findLeft(*delegate, index, Cell::Beginning);
            QCOMPARE(findLeft(*delegate, index, Cell::Middle) - first, 11 * ratio);
            QCOMPARE(findLeft(*delegate, index, Cell::End) - first, 11 * ratio);
        }
    }
}

void CTreePaintingTest::onlyTheUpdatedCameraIsBold()
{
    using Status = Entity::EFirmwareUpdateStatus;
    for (const int ratio : {1, 2}) {
        const auto show = [&](const char *name) {
            entity(name)->setSelectedFirmware("10.20.30");
            return paint(m_label, row(name).siblingAtColumn(4), ratio, 0, Cell::Middle);
        };
        entity("Camera c1")->setUpdateStatus(Status::Waiting);
        const QImage waiting = show("Camera c1");
        QCOMPARE(show("Camera c2"), waiting);
        entity("Camera c1")->setUpdateStatus(Status::Updating);
        const QImage updating = show("Camera c1");
        QVERIFY(findInk(updating, updating.rect()).width()
                > findInk(waiting, waiting.rect()).width());
        QCOMPARE(show("Camera c2"), waiting);
        entity("Camera c1")->setUpdateStatus(Status::Complete);
        QCOMPARE(show("Camera c1"), waiting);
    }
}

void CTreePaintingTest::longTextsEndBeforeTheSeparator()
{
    const auto check = [](const QAbstractItemDelegate &delegate, const QModelIndex &index) {
        for (const int ratio : {1, 2}) {
            const auto findEnd = [&](int width) {
                const QImage image
                    = paint(delegate, index, ratio, 0, Cell::Middle, QSize(width, 20));
                return findInk(image, image.rect()).right();
            };
            // Everything fits into the wide cell, and not into the narrow one.
            QVERIFY(findEnd(300) >= 58 * ratio);
            QVERIFY(findEnd(60) < 58 * ratio);
            QVERIFY(findEnd(60) > 20 * ratio);
        }
    };
    entity("Camera c1")->setUpdateResult(Entity::EFirmwareUpdateResult::Failed);
    check(m_camera, row("Camera c1"));
    check(m_camera, row("Camera a1"));
    for (const auto &[delegate, column] : m_texts)
        check(*delegate, row("Camera c1").siblingAtColumn(column));
}

void CTreePaintingTest::headerSectionsShowTheirState()
{
    QStyleOptionHeader option;
    option.rect = QRect(20, 0, 60, 40);
    option.palette.setColor(QPalette::Base, Qt::white);
    const int rule = option.fontMetrics.height() + 7;
    const CTreeViewHeaderStyle style;
    const auto show = [&](QStyle::State state, QStyleOptionHeader::SectionPosition position) {
        option.state = state;
        option.position = position;
        QStringList shown;
        for (const int ratio : {1, 2}) {
            QImage image(120 * ratio, 40 * ratio, QImage::Format_RGB32);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::magenta);
            QPainter painter(&image);
            style.drawControl(QStyle::CE_HeaderSection, &option, &painter);
            shown.append(describe(image,
                                  {{30, 1},
                                   {30, rule - 1},
                                   {20, rule},
                                   {79, rule},
                                   {30, rule + 2},
                                   {79, rule / 2},
                                   {79, rule - 2}}));
        }
        shown.removeDuplicates();
        return shown.join(", but with double resolution ");
    };
    using Option = QStyleOptionHeader;
    QCOMPARE(show({}, Option::Beginning), "white white rule rule white grey white");
    QCOMPARE(show({}, Option::OnlyOneSection), "white white rule rule white white white");
    QCOMPARE(show(QStyle::State_MouseOver, Option::Middle),
             "light light rule rule white grey light");
    QCOMPARE(show(QStyle::State_Sunken, Option::End), "blue blue rule rule white blue blue");
    QCOMPARE(style.subElementRect(QStyle::SE_HeaderLabel, &option), QRect(20, 0, 60, rule - 7));
    option.section = 3;
    QCOMPARE(style.subElementRect(QStyle::SE_HeaderLabel, &option), QRect(31, 0, 49, rule - 7));
}

void CTreePaintingTest::headerTitlesStayInTheirSections()
{
    CUpdateSummaryDialog dialog;
    dialog.setModel(m_list);
    dialog.show();
    QHeaderView *const header = getTree(dialog)->header();
    header->setSortIndicatorShown(false);
    for (const int width : {60, 90, 120}) {
        for (const int section : {0, 3, 4, 5})
            header->resizeSection(section, width);
        for (const int ratio : {1, 2}) {
            QImage image(header->size() * ratio, QImage::Format_RGB32);
            image.setDevicePixelRatio(ratio);
            header->render(&image);
            for (const int section : {0, 3, 4, 5}) {
                const QRect place(header->sectionViewportPosition(section), 0, width,
                                  header->fontMetrics().height());
                const QRect ink = findInk(image, {place.topLeft() * ratio, place.size() * ratio});
                const int begin = place.left() + (section == 0 ? 0 : 11);
                QCOMPARE(qBound(begin, ink.left() / ratio, begin + 2), ink.left() / ratio);
                QVERIFY(ink.right() < (place.right() - 1) * ratio);
            }
        }
    }
}

QTEST_MAIN(CTreePaintingTest)
#include "tst_treepainting.moc"
