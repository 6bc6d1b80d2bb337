#pragma once

#include <QCheckBox>

namespace Plugin::FirmwareUpdater::Internal::View {

/// A check box that a click anywhere on it toggles, not only one on its indicator: as the editor of
/// a row it lies, without a text of its own, over the text that the row shows.
class CRowCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit CRowCheckBox(QWidget *parent = nullptr);

protected:
    bool hitButton(const QPoint &position) const override;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
