#pragma once

#include <QStyledItemDelegate>

#include <memory>

class QLabel;

namespace Plugin::FirmwareUpdater::Internal::Entity {
class CFirmwareUpdateEntity;
}

namespace Plugin::FirmwareUpdater::Internal::View {

/// Common base of the delegates that only show a text, with or without an icon: paints it by
/// rendering a label, and draws its part of the row's frame and of the column separators.
class CAbstractLabelDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CAbstractLabelDelegate(QObject *parent = nullptr);
    ~CAbstractLabelDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// The text that the cell of @p index shows, not elided and without markup.
    [[nodiscard]] QString getText(const QModelIndex &index) const;

protected:
    struct CCellContent
    {
        QString text;
        bool isBold = false;

        /// Whether the text stands between tags that make it bold. They count when it is elided.
        bool isMarkup = false;

        /// Pixels of the cell's width that the text may not take.
        int reservedWidth = 0;

        /// Whether texts stand behind the place of an icon, also where there is none, so that the
        /// texts of a column stand below each other.
        bool hasIconPlace = false;

        /// Resource name of the icon; may be empty.
        QString iconName;
    };

    /// What the cell of @p entity in column @p column shows.
    [[nodiscard]] virtual CCellContent getContent(const Entity::CFirmwareUpdateEntity &entity,
                                                  int column) const = 0;

private:
    void showText(const CCellContent &content, const QRect &cell, int indent) const;
    void showIcon(const CCellContent &content, const QRect &cell, int indent, qreal ratio) const;

    const std::unique_ptr<QLabel> m_label;
    QLabel *const m_iconLabel;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
