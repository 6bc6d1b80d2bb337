#include "imageview.h"

#include <QIcon>
#include <QPainter>

namespace Viewer::AppCore {

// A neutral dark surround, on which neither a bright nor a dark image glares.
static const QColor BACKGROUND(0x26, 0x2a, 0x30);
static const QColor TITLE_COLOR(0xd5, 0xda, 0xe1);
static const QColor HINT_COLOR(0x8d, 0x96, 0xa3);
static constexpr int ICON_EXTENT = 64;
static constexpr int MARGIN = 16;

CImageView::CImageView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Image"));
    setMinimumSize(240, 180);
}

CImageView::~CImageView() = default;

void CImageView::setImage(const QImage &image)
{
    m_image = image;
    setAccessibleDescription(QString());
    update();
}

void CImageView::setPlaceholder(const QString &title, const QString &hint)
{
    m_image = QImage();
    m_title = title;
    m_hint = hint;
    setAccessibleDescription(title + QLatin1Char(' ') + hint);
    update();
}

bool CImageView::hasImage() const
{
    return !m_image.isNull();
}

QSize CImageView::sizeHint() const
{
    return {640, 480};
}

void CImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), BACKGROUND);
    if (m_image.isNull()) {
        paintPlaceholder(painter);
        return;
    }
    QRect target(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_image);
}

void CImageView::paintPlaceholder(QPainter &painter)
{
    QFont titleFont = font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
    const QRect area = rect().adjusted(MARGIN, MARGIN, -MARGIN, -MARGIN);
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int titleHeight = QFontMetrics(titleFont).boundingRect(area, flags, m_title).height();
    const int hintHeight = fontMetrics().boundingRect(area, flags, m_hint).height();
    const int totalHeight = ICON_EXTENT + MARGIN + titleHeight + MARGIN / 2 + hintHeight;
    QRect line = area;
    line.setTop(qMax(area.top(), area.center().y() - totalHeight / 2));

    const QIcon icon(QStringLiteral(":/viewer/icons/placeholder.png"));
    icon.paint(&painter, QRect(line.left(), line.top(), line.width(), ICON_EXTENT),
               Qt::AlignCenter);
    line.setTop(line.top() + ICON_EXTENT + MARGIN);
    painter.setFont(titleFont);
    painter.setPen(TITLE_COLOR);
    painter.drawText(line, flags, m_title);
    line.setTop(line.top() + titleHeight + MARGIN / 2);
    painter.setFont(font());
    painter.setPen(HINT_COLOR);
    painter.drawText(line, flags, m_hint);
}

} // namespace Viewer::AppCore
