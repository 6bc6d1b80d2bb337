#include "constants.h"
#include "view/treeviewdetailsdelegate.h"
#include "view/treeviewlabeldelegate.h"
#include "view/treeviewresultdelegate.h"
#include "view/treeviewstatusdelegate.h"
#include "viewfixture.h"

#include <QPainter>
#include <QtTest>

using namespace ViewFixture;
using namespace Plugin::FirmwareUpdater;
using namespace Internal::View;
using Entity = CFirmwareUpdateEntity;

/// Gives a test the content that a delegate chose for a cell.
template <typename TDelegate>
class CReadableDelegate : public TDelegate
{
public:
    using TDelegate::getContent;
    using TDelegate::TDelegate;
};

/// The four delegates that show texts, and the frame that they share.
class CLabelDelegatesTest : public QObject
{
    Q_OBJECT

private slots:
    void drawsTheSharedFrame_data();
    void drawsTheSharedFrame();
    void directionsHaveNames();
    void statusesHaveNamesAndIcons();
    void resultsHaveNamesAndIcons();
    void theUpdatedCameraIsBold();
    void iconsAreDrawn();
    void textsAreElided();
    void textsAreNoMarkup();

private:
    [[nodiscard]] static QImage paint(const QStyledItemDelegate &delegate, const QModelIndex &index,
                                      int width = 100, qreal ratio = 1, int state = 0,
                                      int position = QStyleOptionViewItem::Middle);
    [[nodiscard]] static QRect findInk(const QImage &image, const QRect &within);
};

QImage CLabelDelegatesTest::paint(const QStyledItemDelegate &delegate, const QModelIndex &index,
                                  int width, qreal ratio, int state, int position)
{
    QImage image((QSizeF(width, 27) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, width, 27);
    option.state = QStyle::State_Enabled | QStyle::State(state);
    option.viewItemPosition = QStyleOptionViewItem::ViewItemPosition(position);
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
    return image;
}

QRect CLabelDelegatesTest::findInk(const QImage &image, const QRect &within)
{
    QRegion ink;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) {
                ink += QRect(x, y, 1, 1);
            }
        }
    }
    return ink.boundingRect();
}

void CLabelDelegatesTest::drawsTheSharedFrame_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<bool>("left");
    QTest::addColumn<bool>("right");
    QTest::addColumn<bool>("separator");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("first column, ratio %g", ratio)
            << int(QStyleOptionViewItem::Beginning) << ratio << true << false << true;
        QTest::addRow("middle column, ratio %g", ratio)
            << int(QStyleOptionViewItem::Middle) << ratio << false << false << true;
        QTest::addRow("last column, ratio %g", ratio)
            << int(QStyleOptionViewItem::End) << ratio << false << true << false;
    }
}

void CLabelDelegatesTest::drawsTheSharedFrame()
{
    QFETCH(int, position);
    QFETCH(qreal, ratio);
    QFETCH(bool, left);
    QFETCH(bool, right);
    QFETCH(bool, separator);
    const ModelPtr model = makeList(2);
    const CTreeViewLabelDelegate delegate;
    const auto probe = [&](int state, int row, qreal x, qreal y) {
        const QImage image = paint(delegate, model->index(row, 4), 100, ratio, state, position);
        return image.pixelColor(qRound(x * ratio), qRound(y * ratio));
    };
    const int hovered = QStyle::State_MouseOver;
    const int selected = QStyle::State_Selected;
    const QColor &frame = Constants::ULTRA_LIGHT_BLUE_COLOR;
    QCOMPARE(probe(0, 1, 50, 13), QColor(Qt::white));
    QCOMPARE(probe(hovered, 1, 50, 13), Constants::LIGHT_BLUE_COLOR);
    QCOMPARE(probe(selected, 1, 50, 13), Constants::BLUE_COLOR);
    QCOMPARE(probe(hovered | selected, 1, 50, 0), frame);
    QCOMPARE(probe(hovered | selected, 1, 50, 26), frame);
    QCOMPARE(probe(hovered | selected, 1, 0, 13) == frame, left);
    QCOMPARE(probe(hovered | selected, 1, 99, 13) == frame, right);
    QCOMPARE(probe(0, 1, 99, 13) == Constants::LIGHT_GREY_COLOR, separator);
    // The first row keeps a gap to the header.
    QCOMPARE(probe(hovered, 0, 50, 2), QColor(Qt::white));
    QCOMPARE(probe(hovered, 0, 50, 6), Constants::LIGHT_BLUE_COLOR);
}

void CLabelDelegatesTest::directionsHaveNames()
{
    const CReadableDelegate<CTreeViewDetailsDelegate> delegate;
    const QStringList names{QStringLiteral("Upgrade"), QStringLiteral("Downgrade"),
                            QStringLiteral("Reinstall"), QStringLiteral("Unknown")};
    Entity entity;
    for (int direction = 0; direction < names.size(); ++direction) {
        entity.setUpdateDetails(Plugin::CameraPool::EFirmwareUpdateDirection(direction));
        QCOMPARE(delegate.getContent(entity, 5).text, names.at(direction));
    }
}

void CLabelDelegatesTest::statusesHaveNamesAndIcons()
{
    const CReadableDelegate<CTreeViewStatusDelegate> delegate;
    Entity entity;
    QStringList shown;
    for (int status = 0; status < 4; ++status) {
        entity.setUpdateStatus(Entity::EFirmwareUpdateStatus(status));
        const auto content = delegate.getContent(entity, 6);
        shown.append(content.text + QLatin1Char('/') + content.iconName);
        QCOMPARE(content.isBold, status == 1);
    }
    QCOMPARE(shown,
             (QStringList{QStringLiteral("Waiting/"),
                          QStringLiteral("Updating/refresh_black_icon_14x12_en"),
                          QStringLiteral("Complete/update_ok_icon_12x8_en"), QStringLiteral("/")}));
}

void CLabelDelegatesTest::resultsHaveNamesAndIcons()
{
    const CReadableDelegate<CTreeViewResultDelegate> delegate;
    Entity entity;
    QStringList shown;
    for (int result = 0; result < 4; ++result) {
        entity.setUpdateResult(Entity::EFirmwareUpdateResult(result));
        const auto content = delegate.getContent(entity, 7);
        shown.append(content.text + QLatin1Char('/') + content.iconName);
    }
    QCOMPARE(
        shown,
        (QStringList{QStringLiteral("OK/update_ok_icon_12x8_en"),
                     QStringLiteral("<b>Failed</b>/update_failed_icon_12x11_en"),
                     QStringLiteral("Skipped/update_skipped_icon_12x3_en"), QStringLiteral("/")}));
}

void CLabelDelegatesTest::theUpdatedCameraIsBold()
{
    const ModelPtr model = makeList(2);
    const CTreeViewLabelDelegate delegate;
    const QModelIndex index = model->index(1, 0);
    const QRect cell(0, 0, 90, 27);
    const int before = findInk(paint(delegate, index), cell).width();
    getEntity(index)->setUpdateStatus(Entity::EFirmwareUpdateStatus::Updating);
    QVERIFY(findInk(paint(delegate, index), cell).width() > before);
    getEntity(index)->setUpdateStatus(Entity::EFirmwareUpdateStatus::Complete);
    QCOMPARE(findInk(paint(delegate, index), cell).width(), before);
}

void CLabelDelegatesTest::iconsAreDrawn()
{
    const ModelPtr model = makeList(2);
    const CTreeViewStatusDelegate delegate;
    const QModelIndex index = model->index(1, 6);
    const QRect iconPlace(11, 0, 17, 27);
    const QRect textPlace(28, 0, 70, 27);
    QVERIFY(findInk(paint(delegate, index, 130), iconPlace).isEmpty());
    const int textLeft = findInk(paint(delegate, index, 130), textPlace).left();
    getEntity(index)->setUpdateStatus(Entity::EFirmwareUpdateStatus::Complete);
    const QImage complete = paint(delegate, index, 130);
    const QRect icon = findInk(complete, iconPlace);
    QVERIFY(icon.width() >= 9 && icon.width() <= 12);
    QVERIFY(qAbs(icon.center().y() - 13) <= 1);
    // The text stays where it was without an icon, but for the shapes of the letters.
    QVERIFY(qAbs(findInk(complete, textPlace).left() - textLeft) <= 1);
}

void CLabelDelegatesTest::textsAreElided()
{
    const ModelPtr model = makeList(2);
    const CTreeViewLabelDelegate delegate;
    const QModelIndex index = model->index(1, 4);
    getEntity(index)->setSelectedFirmware(QStringLiteral("1.2.3-").repeated(20));
    for (const int width : {40, 100, 142}) {
        const QRect ink = findInk(paint(delegate, index, width), QRect(0, 0, width, 27));
        QVERIFY(ink.left() >= 11);
        QVERIFY(ink.right() < width - 2);
        QVERIFY(ink.right() > width - 20);
    }
}

void CLabelDelegatesTest::textsAreNoMarkup()
{
    const ModelPtr model = makeList(2);
    const CTreeViewLabelDelegate delegate;
    const QRect cell(0, 0, 90, 27);
    const auto inkWidth = [&](const char *firmware) {
        const QModelIndex index = model->index(1, 4);
        getEntity(index)->setSelectedFirmware(QLatin1String(firmware));
        return findInk(paint(delegate, index), cell).width();
    };
    QVERIFY(inkWidth("<b>1</b>") > 3 * inkWidth("1"));
}

QTEST_MAIN(CLabelDelegatesTest)
#include "tst_labeldelegates.moc"
