#pragma once

#include <QHeaderView>

#include <memory>

namespace Plugin::FirmwareUpdater::Internal::Style {
class CTreeViewHeaderStyle;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// The header of the camera trees: tall and bold, drawn in a style of its own.
class CTreeViewHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    explicit CTreeViewHeaderView(QWidget *parent = nullptr);
    ~CTreeViewHeaderView() override;

    QSize sizeHint() const override;

private:
    const std::unique_ptr<Style::CTreeViewHeaderStyle> m_style;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
