#pragma once

#include "model/firmwareupdateentity.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

#include <memory>

class QAbstractItemView;
class QCheckBox;
class QLabel;

namespace Plugin::FirmwareUpdater::Internal::View {

class CTreeRow;

/// Draws the column with the cameras and their check boxes, and lets the user tick them.
///
/// Rows are painted by rendering widgets. The row under the mouse gets a live check box as editor,
/// which stays open when it is toggled and closes when another row becomes the current one. The
/// parent is the view; the view tracks the mouse.
class CTreeViewCameraSelectionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CTreeViewCameraSelectionDelegate(QObject *parent = nullptr);
    ~CTreeViewCameraSelectionDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;

    /// Opens the editor of the row that the mouse moves over, and toggles the current row at Space.
    /// A click on a row whose editor has not opened yet, as after a turn of the mouse wheel,
    /// toggles it as well.
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

protected:
    [[nodiscard]] QPointer<Entity::CFirmwareUpdateEntity>
    getEntityFromModel(const QModelIndex &index) const;

protected slots:
    /// Writes the value of the check box that sent the signal, and leaves its editor open.
    void commit();

private:
    void paintTransportLayer(QPainter *painter, const QStyleOptionViewItem &option,
                             const CTreeRow &row) const;
    void paintCheckBox(QPainter *painter, const QStyleOptionViewItem &option,
                       const CTreeRow &row) const;
    void openEditor(const QModelIndex &index);
    bool trackClick(const QEvent &event, const QModelIndex &index);
    void toggle(QAbstractItemModel *model, const QModelIndex &index) const;
    [[nodiscard]] QAbstractItemView *getView() const;

    const std::unique_ptr<QCheckBox> m_enabledCheckBox;
    const std::unique_ptr<QCheckBox> m_disabledCheckBox;
    const std::unique_ptr<QLabel> m_transportLayerLabel;
    QPersistentModelIndex m_pressedIndex;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
