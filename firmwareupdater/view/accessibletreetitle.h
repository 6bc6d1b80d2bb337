#pragma once

#include <QAccessibleInterface>
#include <QPointer>

namespace Plugin::FirmwareUpdater::Internal::View {

class CCustomTreeView;

/// The title of a column of a camera tree as screen readers see it.
class CAccessibleTreeTitle final : public QAccessibleInterface
{
public:
    CAccessibleTreeTitle(CCustomTreeView *view, int section);

    [[nodiscard]] int getSection() const;

    bool isValid() const override;
    QObject *object() const override;
    QWindow *window() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    const QPointer<CCustomTreeView> m_view;
    const int m_section;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
