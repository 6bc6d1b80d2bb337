#include "constants.h"
#include "style/treeviewheaderstyle.h"
#include "view/treeviewheaderview.h"

#include <QPainter>
#include <QStandardItemModel>
#include <QStyleOptionHeader>
#include <QtTest>

using namespace Plugin::FirmwareUpdater;
using Internal::Style::CTreeViewHeaderStyle;
using Internal::View::CTreeViewHeaderView;

class CTreeViewHeaderStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void drawsSections_data();
    void drawsSections();
    void placesLabels_data();
    void placesLabels();
    void placesTheArrowBehindTheTitle();
    void arrowShowsTheOrder_data();
    void arrowShowsTheOrder();
    void headerArrowPointsUpAtAscendingOrder();

private:
    [[nodiscard]] QImage paint(bool asArrow) const;
    [[nodiscard]] static QVector<int> getRowWidths(const QImage &image, const QRect &rect);

    const CTreeViewHeaderStyle m_style;
    QStyleOptionHeader m_option;
    int m_titleHeight = 0;
};

void CTreeViewHeaderStyleTest::init()
{
    m_option = QStyleOptionHeader();
    m_option.rect = QRect(20, 0, 60, 40);
    m_option.text = QStringLiteral("Title");
    m_option.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    m_option.palette.setColor(QPalette::Base, Qt::white);
    m_titleHeight = m_option.fontMetrics.height();
}

QImage CTreeViewHeaderStyleTest::paint(bool asArrow) const
{
    QImage image(120, 40, QImage::Format_RGB32);
    image.fill(asArrow ? Qt::white : Qt::magenta);
    QPainter painter(&image);
    if (asArrow) {
        m_style.drawPrimitive(QStyle::PE_IndicatorHeaderArrow, &m_option, &painter);
    } else {
        m_style.drawControl(QStyle::CE_HeaderSection, &m_option, &painter);
    }
    return image;
}

QVector<int> CTreeViewHeaderStyleTest::getRowWidths(const QImage &image, const QRect &rect)
{
    QVector<int> widths;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        int dark = 0;
        for (int x = rect.left(); x <= rect.right(); ++x) {
            dark += qGray(image.pixel(x, y)) < 160 ? 1 : 0;
        }
        widths.append(dark);
    }
    return widths;
}

void CTreeViewHeaderStyleTest::drawsSections_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("position");
    QTest::addColumn<QColor>("band");
    QTest::addColumn<bool>("separator");
    const QColor white(Qt::white);
    QTest::newRow("first") << 0 << int(QStyleOptionHeader::Beginning) << white << true;
    QTest::newRow("middle") << 0 << int(QStyleOptionHeader::Middle) << white << true;
    QTest::newRow("last") << 0 << int(QStyleOptionHeader::End) << white << false;
    QTest::newRow("only") << 0 << int(QStyleOptionHeader::OnlyOneSection) << white << false;
    QTest::newRow("hovered") << int(QStyle::State_MouseOver) << int(QStyleOptionHeader::Middle)
                             << Constants::LIGHT_BLUE_COLOR << true;
    QTest::newRow("pressed") << int(QStyle::State_Sunken | QStyle::State_MouseOver)
                             << int(QStyleOptionHeader::End) << Constants::BLUE_COLOR << false;
}

void CTreeViewHeaderStyleTest::drawsSections()
{
    QFETCH(int, state);
    QFETCH(int, position);
    QFETCH(QColor, band);
    m_option.state |= QStyle::State(state);
    m_option.position = QStyleOptionHeader::SectionPosition(position);
    const QImage image = paint(false);
    QCOMPARE(image.pixelColor(30, 1), band);
    QCOMPARE(image.pixelColor(30, m_titleHeight + 6), band);
    QCOMPARE(image.pixelColor(20, m_titleHeight + 7), Constants::GREY_COLOR);
    QCOMPARE(image.pixelColor(79, m_titleHeight + 7), Constants::GREY_COLOR);
    QCOMPARE(image.pixelColor(30, m_titleHeight + 9), QColor(Qt::white));
    QCOMPARE(image.pixelColor(19, m_titleHeight + 7), QColor(Qt::magenta));
    QTEST(image.pixelColor(79, m_titleHeight / 2) == Constants::LIGHT_GREY_COLOR, "separator");
    QCOMPARE(image.pixelColor(79, 0), band);
}

void CTreeViewHeaderStyleTest::placesLabels_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("left");
    QTest::newRow("first section") << 0 << 20;
    QTest::newRow("later section") << 3 << 31;
}

void CTreeViewHeaderStyleTest::placesLabels()
{
    QFETCH(int, section);
    QFETCH(int, left);
    m_option.section = section;
    const QRect rect = m_style.subElementRect(QStyle::SE_HeaderLabel, &m_option);
    QCOMPARE(rect, QRect(QPoint(left, 0), QPoint(79, m_titleHeight - 1)));
    QCOMPARE(m_style.pixelMetric(QStyle::PM_HeaderMargin), 0);
}

void CTreeViewHeaderStyleTest::placesTheArrowBehindTheTitle()
{
    const int width = m_option.fontMetrics.horizontalAdvance(m_option.text);
    QCOMPARE(m_style.subElementRect(QStyle::SE_HeaderArrow, &m_option),
             QRect(width + 5, m_option.fontMetrics.ascent() - 7, 10, 7));
}

void CTreeViewHeaderStyleTest::arrowShowsTheOrder_data()
{
    QTest::addColumn<int>("indicator");
    QTest::addColumn<int>("direction");
    QTest::newRow("none") << int(QStyleOptionHeader::None) << 0;
    QTest::newRow("up") << int(QStyleOptionHeader::SortUp) << -1;
    QTest::newRow("down") << int(QStyleOptionHeader::SortDown) << 1;
}

void CTreeViewHeaderStyleTest::arrowShowsTheOrder()
{
    QFETCH(int, indicator);
    m_option.sortIndicator = QStyleOptionHeader::SortIndicator(indicator);
    const QRect rect = m_style.subElementRect(QStyle::SE_HeaderArrow, &m_option);
    const QVector<int> widths = getRowWidths(paint(true), rect);
    const int upper = widths.at(1) + widths.at(2);
    const int lower = widths.at(4) + widths.at(5);
    QTEST(upper == lower ? 0 : upper > lower ? 1 : -1, "direction");
}

void CTreeViewHeaderStyleTest::headerArrowPointsUpAtAscendingOrder()
{
    QStandardItemModel model(1, 1);
    model.setHorizontalHeaderLabels({QString(QLatin1Char(' '))});
    CTreeViewHeaderView header;
    header.setModel(&model);
    header.setSortIndicatorShown(true);
    header.resize(200, header.sizeHint().height());
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        header.setSortIndicator(0, order);
        const QImage image = header.grab().toImage().scaled(header.size());
        const QFontMetrics metrics(header.font());
        const QRect rect(metrics.horizontalAdvance(QLatin1Char(' ')) + 5, metrics.ascent() - 7, 10,
                         7);
        const QVector<int> widths = getRowWidths(image, rect);
        QVERIFY(widths.at(1) + widths.at(5) > 0);
        QCOMPARE(widths.at(5) > widths.at(1), order == Qt::AscendingOrder);
    }
}

QTEST_MAIN(CTreeViewHeaderStyleTest)
#include "tst_treeviewheaderstyle.moc"
