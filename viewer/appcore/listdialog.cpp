#include "listdialog.h"

#include <QTreeWidget>

namespace Viewer::AppCore {

static constexpr int DETAILS_ROLE = Qt::UserRole;

CListDialog::CListDialog(const QString &title, const QStringList &columns, QWidget *parent)
    : CListFrame(title, new QTreeWidget, parent)
    , m_tree(static_cast<QTreeWidget *>(getView()))
{
    m_tree->setColumnCount(columns.size());
    m_tree->setHeaderLabels(columns);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CListDialog::onCurrentChanged);
}

CListDialog::~CListDialog() = default;

QTreeWidgetItem *CListDialog::addRow(const QStringList &texts, const QString &details)
{
    auto *const item = new QTreeWidgetItem(m_tree, texts);
    item->setData(0, DETAILS_ROLE, details);
    if (!m_tree->currentItem())
        m_tree->setCurrentItem(item);
    return item;
}

QTreeWidget *CListDialog::getTree() const
{
    return m_tree;
}

void CListDialog::onCurrentChanged()
{
    const QTreeWidgetItem *const item = m_tree->currentItem();
    setDetails(item ? item->data(0, DETAILS_ROLE).toString() : QString());
}

} // namespace Viewer::AppCore
