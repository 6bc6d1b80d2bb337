#pragma once

#include <QProxyStyle>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Frames what got the focus by keyboard: the label of a button, because some styles give the
/// button with the focus and the one that Enter clicks the same border, and then nothing tells on
/// which of the two Space works; and the link in a text, of which styles mostly show some dots.
class CFocusStyle : public QProxyStyle
{
    Q_OBJECT

public:
    explicit CFocusStyle(QObject *parent);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;

    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

    /// Draws the frame just inside of @p rect, for whoever has another place for it.
    static void drawFrame(QPainter *painter, const QRect &rect, const QPalette &palette);
};

} // namespace Plugin::FirmwareUpdater::Internal::Style
