#include "pluginlistdialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Viewer::AppCore {

enum EColumn { NameColumn, VersionColumn, StateColumn, ColumnCount };

static constexpr int DetailsRole = Qt::UserRole;

CPluginListDialog::CPluginListDialog(const QList<PluginSystem::CPluginSpec> &specs, QWidget *parent)
    : QDialog(parent)
    , m_tree(new QTreeWidget(this))
    , m_detailsLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("pluginListDialog"));
    setWindowTitle(tr("Plug-ins"));
    setModal(true);
    resize(560, 380);

    m_tree->setObjectName(QStringLiteral("pluginTree"));
    m_tree->setAccessibleName(windowTitle());
    m_tree->setColumnCount(ColumnCount);
    m_tree->setHeaderLabels({tr("Name"), tr("Version"), tr("State")});
    m_tree->setRootIsDecorated(false);
    m_tree->setAlternatingRowColors(true);
    m_tree->setUniformRowHeights(true);
    for (const PluginSystem::CPluginSpec &spec : specs)
        addEntry(spec);
    m_tree->header()->setStretchLastSection(true);
    m_tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    m_detailsLabel->setObjectName(QStringLiteral("detailsLabel"));
    m_detailsLabel->setWordWrap(true);
    m_detailsLabel->setTextFormat(Qt::PlainText);
    m_detailsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse
                                            | Qt::TextSelectableByKeyboard);
    m_detailsLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_detailsLabel->setMinimumHeight(5 * fontMetrics().lineSpacing());

    auto *const buttonBox = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CPluginListDialog::onCurrentChanged);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_detailsLabel);
    layout->addWidget(buttonBox);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

CPluginListDialog::~CPluginListDialog() = default;

void CPluginListDialog::addEntry(const PluginSystem::CPluginSpec &spec)
{
    QString state = tr("Running");
    if (spec.isBuiltIn())
        state = tr("Part of the viewer");
    else if (spec.hasFailed())
        state = tr("Not available");
    QStringList details;
    for (const QString &line : {spec.getDescription(), spec.getVendor(),
                                QDir::toNativeSeparators(spec.getFilePath()), spec.getError()}) {
        if (!line.isEmpty())
            details.append(line);
    }
    auto *const item
        = new QTreeWidgetItem(m_tree, {spec.getName(), spec.getVersion().toString(), state});
    item->setData(NameColumn, DetailsRole, details.join(QLatin1Char('\n')));
    if (spec.hasFailed())
        item->setIcon(NameColumn, style()->standardIcon(QStyle::SP_MessageBoxWarning));
}

void CPluginListDialog::onCurrentChanged()
{
    const QTreeWidgetItem *const item = m_tree->currentItem();
    m_detailsLabel->setText(item ? item->data(NameColumn, DetailsRole).toString() : QString());
}

} // namespace Viewer::AppCore
