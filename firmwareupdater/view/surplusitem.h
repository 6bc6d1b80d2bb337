#pragma once

#include <QLayoutItem>

namespace Plugin::FirmwareUpdater::Internal::View {

/// A widget's place in the layout of a page, which asks for all height that the page has beyond its
/// standard height. Up to that height it asks for what the widget asks for. So the gaps that can
/// grow keep the size that they have on a page of standard height.
class CSurplusItem : public QWidgetItem
{
public:
    /// @p widget must be in the window that is the page, and outlive this.
    CSurplusItem(QWidget *widget, int standardPageHeight);

    /// Follows the height of the page; the layout has to be told to ask again.
    [[nodiscard]] QSize sizeHint() const override;

private:
    const int m_standardPageHeight;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
