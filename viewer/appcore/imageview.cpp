#include "imageview.h"

#include <QIcon>
#include <QPainter>

namespace Viewer::AppCore {

// A neutral dark surround, on which neither a bright nor a dark image glares.
static const QColor Background(0x26, 0x2a, 0x30);
static const QColor TitleColor(0xd5, 0xda, 0xe1);
static const QColor HintColor(0x8d, 0x96, 0xa3);
static constexpr int IconExtent = 64;
static constexpr int Margin = 16;

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
    painter.fillRect(rect(), Background);
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
    const QRect area = rect().adjusted(Margin, Margin, -Margin, -Margin);
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const int titleHeight = QFontMetrics(titleFont).boundingRect(area, flags, m_title).height();
    const int hintHeight = fontMetrics().boundingRect(area, flags, m_hint).height();
    const int totalHeight = IconExtent + Margin + titleHeight + Margin / 2 + hintHeight;
    QRect line = area;
    line.setTop(qMax(area.top(), area.center().y() - totalHeight / 2));

    const QIcon icon(QStringLiteral(":/viewer/icons/placeholder.png"));
    icon.paint(&painter, QRect(line.left(), line.top(), line.width(), IconExtent), Qt::AlignCenter);
    line.setTop(line.top() + IconExtent + Margin);
    painter.setFont(titleFont);
    painter.setPen(TitleColor);
    painter.drawText(line, flags, m_title);
    line.setTop(line.top() + titleHeight + Margin / 2);
    painter.setFont(font());
    painter.setPen(HintColor);
    painter.drawText(line, flags, m_hint);
}

} // namespace Viewer::AppCore
