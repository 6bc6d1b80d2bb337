#include "elidedlabel.h"

#include <QPainter>

namespace Viewer::ImageView {

CElidedLabel::CElidedLabel(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

CElidedLabel::~CElidedLabel() = default;

void CElidedLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QString CElidedLabel::getText() const
{
    return m_text;
}

QSize CElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 1, fontMetrics().height()};
}

QSize CElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void CElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}

} // namespace Viewer::ImageView
