#include "abstractlabeldelegate.h"

#include "cellrendering.h"
#include "style/icons.h"
#include "style/iconstyle.h"
#include "view/treerow.h"

#include <QLabel>
#include <QTextDocumentFragment>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Width of the widest icon, and its distance to the text behind it.
static constexpr int ICON_WIDTH = 14;
static constexpr int ICON_SPACING = 6;

/// Distance of a text from the column separator on its left.
static constexpr int TEXT_INDENT = 11;

static QString removeMarkup(const QString &text)
{
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}

CAbstractLabelDelegate::CAbstractLabelDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_label(std::make_unique<QLabel>())
    , m_iconLabel(new QLabel(m_label.get()))
{
    setUpCellWidget(m_label.get());
    m_label->setTextFormat(Qt::PlainText);
}

CAbstractLabelDelegate::~CAbstractLabelDelegate() = default;

void CAbstractLabelDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    const CTreeRow row(index);
    if (!row.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QRect &cell = option.rect;
    const bool isActive = !row.isTransportLayer();
    const bool isBeginning = option.viewItemPosition == QStyleOptionViewItem::Beginning;
    const bool isEnd = option.viewItemPosition == QStyleOptionViewItem::End;

    m_label->setBackgroundRole(isActive ? getBackgroundRole(option.state) : QPalette::Base);
    m_label->setGeometry(cell);
    m_label->setEnabled(row.getEntity()->isEnabled());
    const CCellContent content = getContent(*row.getEntity(), index.column());
    const int indent = isBeginning ? 0 : TEXT_INDENT;
    showText(content, cell, indent);
    showIcon(content, cell, indent, Style::getDevicePixelRatio(*painter));

    const int top = row.isCameraType() ? 1 : row.isFirst() ? 4 : 0;
    renderCellWidget(painter, m_label.get(), cell.topLeft() + QPoint(0, top),
                     cell.size() - QSize(0, top));

    painter->save();
    if (!isEnd)
        drawColumnSeparator(painter, cell);
    if (isActive && (option.state & QStyle::State_Selected)
        && (option.state & QStyle::State_MouseOver) && row.getEntity()->isEnabled()) {
        Qt::Edges edges = Qt::TopEdge | Qt::BottomEdge;
        edges.setFlag(Qt::LeftEdge, isBeginning);
        edges.setFlag(Qt::RightEdge, isEnd);
        drawRowFrame(painter, cell, edges);
    }
    painter->restore();
}

QString CAbstractLabelDelegate::getText(const QModelIndex &index) const
{
    const CTreeRow row(index);
    if (!row.isValid())
        return {};
    const CCellContent content = getContent(*row.getEntity(), index.column());
    return content.isMarkup ? removeMarkup(content.text) : content.text;
}

void CAbstractLabelDelegate::showText(const CCellContent &content, const QRect &cell,
                                      int indent) const
{
    QFont font = m_label->font();
    font.setWeight(content.isBold ? QFont::Bold : QFont::Normal);
    m_label->setFont(font);
    QString text = m_label->fontMetrics().elidedText(content.text, Qt::ElideRight,
                                                     cell.width() - content.reservedWidth);
    if (content.isMarkup) {
        // Shown as a plain text: rich text would get a base line of its own, up to a pixel above
        // that of the row's other cells.
        text = removeMarkup(text);
        font.setWeight(QFont::Bold);
        m_label->setFont(font);
    }
    m_label->setIndent(content.hasIconPlace ? indent + ICON_WIDTH + ICON_SPACING : indent);
    m_label->setText(text);
}

void CAbstractLabelDelegate::showIcon(const CCellContent &content, const QRect &cell, int indent,
                                      qreal ratio) const
{
    m_iconLabel->setVisible(!content.iconName.isEmpty());
    if (content.iconName.isEmpty())
        return;
    const QPixmap icon = Style::getIconPixmap(content.iconName, ratio);
    const QSize size = icon.size() / icon.devicePixelRatio();
    Style::CIconStyle::setIcon(m_iconLabel, content.iconName);
    m_iconLabel->setGeometry(QRect(QPoint(indent, (cell.height() - size.height()) / 2), size));
}

} // namespace Plugin::FirmwareUpdater::Internal::View
