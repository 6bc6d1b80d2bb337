#pragma once

#include <QProxyStyle>

class QStyleOptionHeader;

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Draws the header of the camera trees: bold titles in a band that shows hover and press, a rule
/// below them, short separators between them, and a small arrow behind the title of the sorted
/// column.
class CTreeViewHeaderStyle : public QProxyStyle
{
    Q_OBJECT

public:
    CTreeViewHeaderStyle();

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

private:
    void drawSection(const QStyleOptionHeader &option, QPainter *painter) const;
    void drawSortArrow(const QStyleOptionHeader &option, QPainter *painter,
                       const QWidget *widget) const;
};

} // namespace Plugin::FirmwareUpdater::Internal::Style
