#include "treeviewcameraselectiondelegate.h"

#include "cellrendering.h"
#include "model/firmwareupdatetreemodel.h"
#include "rowcheckbox.h"
#include "view/treerow.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QSortFilterProxyModel>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

/// Where the boxes of a model group's cameras begin, and where those of all other rows do.
static constexpr int DIRECT_CAMERA_INDENT = 22;
static constexpr int INDENT = 2;

/// How much lower than its row a box is painted.
static int getPaintedTop(const CTreeRow &row)
{
    return row.isCameraType() ? 1 : row.isFirstListedCamera() ? 4 : 0;
}

static QCheckBox *getCheckBox(const QWidget *editor)
{
    const QLayout *layout = editor->layout();
    QLayoutItem *item = layout ? layout->itemAt(0) : nullptr;
    return item ? qobject_cast<QCheckBox *>(item->widget()) : nullptr;
}

static void writeSelection(QAbstractItemModel *model, const QModelIndex &index, bool selected)
{
    QAbstractItemModel *source = model;
    QModelIndex sourceIndex = index;
    if (const auto *proxy = qobject_cast<QSortFilterProxyModel *>(model)) {
        source = proxy->sourceModel();
        sourceIndex = proxy->mapToSource(index);
    }
    if (auto *treeModel = qobject_cast<Model::CFirmwareUpdateTreeModel *>(source)) {
        treeModel->setData(sourceIndex, QVariant(selected), Qt::EditRole);
        treeModel->updateAllNodesBySelection(sourceIndex);
    }
}

/// Space in front of a row's text: box, indent and a margin at the end.
static int getTextMargin(const CTreeRow &row)
{
    return row.isDirectCamera() ? 49 : 29;
}

CTreeViewCameraSelectionDelegate::CTreeViewCameraSelectionDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_enabledCheckBox(std::make_unique<QCheckBox>())
    , m_disabledCheckBox(std::make_unique<QCheckBox>())
    , m_transportLayerLabel(std::make_unique<QLabel>())
{
    setUpCellWidget(m_enabledCheckBox.get());
    setUpCellWidget(m_disabledCheckBox.get());
    setUpCellWidget(m_transportLayerLabel.get());

    // Rows look alike also where the platform gives each kind of widget a font and colours of its
    // own.
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_disabledCheckBox.get(), m_transportLayerLabel.get()}) {
        widget->setFont(m_enabledCheckBox->font());
        widget->setPalette(m_enabledCheckBox->palette());
    }

    m_disabledCheckBox->setEnabled(false);

    m_transportLayerLabel->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    m_transportLayerLabel->setIndent(0);
    m_transportLayerLabel->setTextFormat(Qt::PlainText);
    m_transportLayerLabel->setBackgroundRole(QPalette::Base);

    // An open editor takes the mouse's moves from the view. It does not take the hover events,
    // which tell the view also then which row the mouse is on.
    if (const QAbstractItemView *view = getView())
        view->viewport()->setAttribute(Qt::WA_Hover);
}

CTreeViewCameraSelectionDelegate::~CTreeViewCameraSelectionDelegate() = default;

void CTreeViewCameraSelectionDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                             const QModelIndex &index) const
{
    const CTreeRow row(index);
    if (!row.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    if (row.isTransportLayer())
        paintTransportLayer(painter, option, row);
    else
        paintCheckBox(painter, option, row);

    painter->save();
    if (option.viewItemPosition != QStyleOptionViewItem::OnlyOne)
        drawColumnSeparator(painter, option.rect);
    if ((option.state & QStyle::State_Selected) && (option.state & QStyle::State_MouseOver)
        && row.getEntity()->isEnabled() && !row.isTransportLayer()) {
        drawRowFrame(painter, option.rect.adjusted(row.isDirectCamera() ? 20 : 0, 0, 0, 0),
                     Qt::TopEdge | Qt::LeftEdge | Qt::BottomEdge);
    }
    painter->restore();
}

void CTreeViewCameraSelectionDelegate::paintTransportLayer(QPainter *painter,
                                                           const QStyleOptionViewItem &option,
                                                           const CTreeRow &row) const
{
    const QRect &cell = option.rect;
    QLabel *label = m_transportLayerLabel.get();
    label->setGeometry(cell);
    label->setEnabled(row.getEntity()->isEnabled());
    label->setText(label->fontMetrics().elidedText(
        row.getEntity()->getData(CFirmwareUpdateEntity::DisplayName).toString(), Qt::ElideRight,
        label->width()));
    renderCellWidget(painter, label, cell.topLeft() + QPoint(1, 0),
                     QSize(cell.width() - 1, cell.height()));
}

void CTreeViewCameraSelectionDelegate::paintCheckBox(QPainter *painter,
                                                     const QStyleOptionViewItem &option,
                                                     const CTreeRow &row) const
{
    const QRect &cell = option.rect;
    const QPointer<CFirmwareUpdateEntity> entity = row.getEntity();
    QCheckBox *checkBox = m_disabledCheckBox.get();
    if (entity->isEnabled()) {
        checkBox = m_enabledCheckBox.get();
        checkBox->setChecked(entity->isSelected());
    }
    checkBox->setBackgroundRole(getBackgroundRole(option.state));
    checkBox->setGeometry(cell);

    const int width = cell.width() - 1;
    QString text = checkBox->fontMetrics().elidedText(
        entity->getData(CFirmwareUpdateEntity::DisplayName).toString(), Qt::ElideRight,
        width - getTextMargin(row));
    // A button would underline the letter behind an ampersand.
    checkBox->setText(text.replace(QLatin1Char('&'), QStringLiteral("&&")));

    const int indent = row.isDirectCamera() ? DIRECT_CAMERA_INDENT : INDENT;
    const int top = getPaintedTop(row);
    renderCellWidget(painter, checkBox, cell.topLeft() + QPoint(indent, top),
                     QSize(width + 1 - indent, cell.height() - top));
}

QSize CTreeViewCameraSelectionDelegate::sizeHint(const QStyleOptionViewItem &option,
                                                 const QModelIndex &index) const
{
    return CTreeRow(index).getSizeHint(QStyledItemDelegate::sizeHint(option, index));
}

QWidget *CTreeViewCameraSelectionDelegate::createEditor(QWidget *parent,
                                                        const QStyleOptionViewItem &option,
                                                        const QModelIndex &index) const
{
    const CTreeRow row(index);
    if (!row.isValid() || row.isTransportLayer())
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto *editor = new QWidget(parent);
    editor->setBaseSize(option.rect.size());
    // The keyboard stays with the view: Space, the arrow keys and Escape work as without an editor.
    editor->setFocusProxy(getView());

    auto *layout = new QHBoxLayout(editor);
    const int top = row.isCameraType() ? 3 : row.isFirstListedCamera() ? 8 : 0;
    layout->setContentsMargins(row.isDirectCamera() ? DIRECT_CAMERA_INDENT : INDENT, top, 0, 0);

    auto *checkBox = new CRowCheckBox(editor);
    // The box looks like the painted one below it, and lets the painted text shine through.
    setUpCellWidget(checkBox);
    checkBox->setAutoFillBackground(false);
    checkBox->setBaseSize(option.rect.size());
    checkBox->setFocusPolicy(Qt::NoFocus);
    checkBox->setAccessibleName(index.data().toString());
    checkBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // So high that its middle, where styles put the box, is the middle of the painted one.
    checkBox->setMaximumHeight(option.rect.height() - 2 * (top - getPaintedTop(row)));
    layout->addWidget(checkBox);
    connect(checkBox, &QCheckBox::toggled, this, &CTreeViewCameraSelectionDelegate::commit);
    return editor;
}

void CTreeViewCameraSelectionDelegate::setEditorData(QWidget *editor,
                                                     const QModelIndex &index) const
{
    const QPointer<CFirmwareUpdateEntity> entity = getEntityFromModel(index);
    if (!entity) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    if (QCheckBox *checkBox = getCheckBox(editor)) {
        const QSignalBlocker blocker(checkBox);
        checkBox->setChecked(entity->isSelected());
        checkBox->setEnabled(entity->isEnabled());
    }
}

void CTreeViewCameraSelectionDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                                    const QModelIndex &index) const
{
    const QPointer<CFirmwareUpdateEntity> entity = getEntityFromModel(index);
    if (!entity) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const QCheckBox *checkBox = getCheckBox(editor);
    if (checkBox && checkBox->isChecked() != entity->isSelected())
        writeSelection(model, index, checkBox->isChecked());
}

void CTreeViewCameraSelectionDelegate::updateEditorGeometry(QWidget *editor,
                                                            const QStyleOptionViewItem &option,
                                                            const QModelIndex &index) const
{
    Q_UNUSED(index)
    editor->setGeometry(option.rect);
}

void CTreeViewCameraSelectionDelegate::destroyEditor(QWidget *editor,
                                                     const QModelIndex &index) const
{
    // A widget that dies takes the focus away from its proxy.
    editor->setFocusProxy(nullptr);
    QStyledItemDelegate::destroyEditor(editor, index);
}

bool CTreeViewCameraSelectionDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                                   const QStyleOptionViewItem &option,
                                                   const QModelIndex &index)
{
    const CTreeRow row(index);
    if (index.column() == 0 && row.isValid() && !row.isTransportLayer()) {
        if (event->type() == QEvent::MouseMove) {
            openEditor(index);
        } else if (trackClick(*event, index)) {
            toggle(model, index);
        } else if (event->type() == QEvent::KeyPress
                   && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
            toggle(model, index);
            return true;
        }
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

void CTreeViewCameraSelectionDelegate::openEditor(const QModelIndex &index)
{
    QAbstractItemView *view = getView();
    if (!view)
        return;
    // Closes the editor of the row that was current before.
    view->setCurrentIndex(index);
    if (!view->isPersistentEditorOpen(index))
        view->edit(index);
}

bool CTreeViewCameraSelectionDelegate::trackClick(const QEvent &event, const QModelIndex &index)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_pressedIndex = static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton
            ? index
            : QModelIndex();
        return false;
    case QEvent::MouseButtonRelease: {
        const bool isClick = static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton
            && m_pressedIndex == index;
        m_pressedIndex = QModelIndex();
        return isClick;
    }
    default:
        return false;
    }
}

void CTreeViewCameraSelectionDelegate::toggle(QAbstractItemModel *model,
                                              const QModelIndex &index) const
{
    const QPointer<CFirmwareUpdateEntity> entity = getEntityFromModel(index);
    if (entity->isEnabled())
        writeSelection(model, index, !entity->isSelected());
}

QPointer<CFirmwareUpdateEntity>
CTreeViewCameraSelectionDelegate::getEntityFromModel(const QModelIndex &index) const
{
    return CTreeRow(index).getEntity();
}

void CTreeViewCameraSelectionDelegate::commit()
{
    const auto *checkBox = qobject_cast<QCheckBox *>(sender());
    if (QWidget *editor = checkBox ? checkBox->parentWidget() : nullptr) {
        emit commitData(editor);
        emit closeEditor(editor, EditNextItem);
    }
}

QAbstractItemView *CTreeViewCameraSelectionDelegate::getView() const
{
    return qobject_cast<QAbstractItemView *>(parent());
}

} // namespace Plugin::FirmwareUpdater::Internal::View
