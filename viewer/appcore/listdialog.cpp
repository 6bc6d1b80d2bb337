#include "listdialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Viewer::AppCore {

static constexpr int DETAILS_ROLE = Qt::UserRole;

CListDialog::CListDialog(const QString &title, const QStringList &columns, QWidget *parent)
    : QDialog(parent)
    , m_hintLabel(new QLabel(this))
    , m_tree(new QTreeWidget(this))
    , m_detailsLabel(new QLabel(this))
    , m_buttonBox(new QDialogButtonBox(QDialogButtonBox::Close, this))
{
    setWindowTitle(title);
    setModal(true);

    m_hintLabel->setObjectName(QStringLiteral("hintLabel"));
    m_hintLabel->setWordWrap(true);
    m_hintLabel->setTextFormat(Qt::PlainText);
    m_hintLabel->hide();
    m_tree->setAccessibleName(title);
    m_tree->setColumnCount(columns.size());
    m_tree->setHeaderLabels(columns);
    m_tree->setRootIsDecorated(false);
    m_tree->setAlternatingRowColors(true);
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    m_detailsLabel->setObjectName(QStringLiteral("detailsLabel"));
    m_detailsLabel->setWordWrap(true);
    m_detailsLabel->setTextFormat(Qt::PlainText);
    m_detailsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse
                                            | Qt::TextSelectableByKeyboard);
    m_detailsLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_detailsLabel->setMinimumHeight(5 * fontMetrics().lineSpacing());

    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CListDialog::onCurrentChanged);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_hintLabel);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_detailsLabel);
    layout->addWidget(m_buttonBox);
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

void CListDialog::setHint(const QString &hint)
{
    m_hintLabel->setText(hint);
    m_hintLabel->setVisible(!hint.isEmpty());
}

void CListDialog::setDetails(const QString &details)
{
    m_detailsLabel->setText(details);
}

QTreeWidget *CListDialog::getTree() const
{
    return m_tree;
}

QDialogButtonBox *CListDialog::getButtonBox() const
{
    return m_buttonBox;
}

void CListDialog::onCurrentChanged()
{
    const QTreeWidgetItem *const item = m_tree->currentItem();
    setDetails(item ? item->data(0, DETAILS_ROLE).toString() : QString());
}

} // namespace Viewer::AppCore
