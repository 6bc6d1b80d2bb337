#pragma once

#include "accessibletreeitem.h"

namespace Plugin::FirmwareUpdater::Internal::View {

/// The title of a column of a camera tree as screen readers see it.
class CAccessibleTreeTitle final : public CAccessibleTreeItem
{
public:
    CAccessibleTreeTitle(CCustomTreeView *view, int section);

    [[nodiscard]] int getSection() const;

    bool isValid() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    const int m_section;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
