#pragma once

#include <QProxyStyle>

namespace Plugin::FirmwareUpdater::Internal::Style {

/// Frames the label of a button that got the focus by keyboard. Some styles give the button with
/// the focus and the one that Enter clicks the same border, and then nothing tells on which of the
/// two Space works.
class CButtonFocusStyle : public QProxyStyle
{
    Q_OBJECT

public:
    explicit CButtonFocusStyle(QObject *parent);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
};

} // namespace Plugin::FirmwareUpdater::Internal::Style
