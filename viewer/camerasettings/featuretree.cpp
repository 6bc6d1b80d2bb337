#include "featuretree.h"

#include "viewer/text/visibletext.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace Viewer::CameraSettings {

using Camera::CFeatureInfo;

static constexpr int VALUE_LENGTH = 200; // characters

CFeatureTree::CFeatureTree(QWidget *parent)
    : QWidget(parent)
    , m_model(new QStandardItemModel(this))
{
    m_model->setHorizontalHeaderLabels({tr("Feature"), tr("Value")});
    auto *const sorted = new QSortFilterProxyModel(this);
    sorted->setSourceModel(m_model);
    sorted->setRecursiveFilteringEnabled(true);
    sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);

    auto *const filter = new QLineEdit(this);
    filter->setObjectName(QStringLiteral("featureFilter"));
    filter->setClearButtonEnabled(true);
    auto *const label = new QLabel(tr("&All features:"), this);
    label->setBuddy(filter);
    filter->setPlaceholderText(tr("Part of a name"));

    auto *const view = new QTreeView(this);
    view->setObjectName(QStringLiteral("featureTree"));
    view->setModel(sorted);
    view->setUniformRowHeights(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->header()->setSectionResizeMode(QHeaderView::Interactive);
    connect(filter, &QLineEdit::textChanged, this, [sorted, view](const QString &text) {
        sorted->setFilterFixedString(text.trimmed());
        if (text.trimmed().isEmpty())
            view->collapseAll();
        else
            view->expandAll();
    });

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(filter);
    layout->addWidget(view, 1);
    view->header()->resizeSection(0, view->fontMetrics().averageCharWidth() * 24);
}

static QString describeValue(const CFeatureInfo &feature)
{
    return Text::shorten((feature.value + QLatin1Char(' ') + feature.unit).trimmed(), VALUE_LENGTH);
}

QStandardItem *CFeatureTree::findCategory(const QString &path)
{
    if (path.isEmpty())
        return m_model->invisibleRootItem();
    QStandardItem *&item = m_categories[path];
    if (!item) {
        // Of the camera's own making: a level for each would let it make as many as it likes.
        item = new QStandardItem(Text::shorten(path));
        m_model->appendRow({item, new QStandardItem});
    }
    return item;
}

void CFeatureTree::setFeatures(const QVector<CFeatureInfo> &features)
{
    m_model->removeRows(0, m_model->rowCount());
    m_categories.clear();
    m_values.clear();
    m_names.clear();
    m_next = 0;
    for (const CFeatureInfo &feature : features) {
        auto *const value = new QStandardItem(describeValue(feature));
        findCategory(feature.category)
            ->appendRow({new QStandardItem(Text::shorten(feature.name)), value});
        m_values.insert(feature.name, value);
        m_names.append(feature.name);
    }
}

void CFeatureTree::update(const QVector<CFeatureInfo> &features)
{
    for (const CFeatureInfo &feature : features) {
        if (QStandardItem *const value = m_values.value(feature.name))
            value->setText(describeValue(feature));
    }
}

QStringList CFeatureTree::takeNextNames(int count)
{
    const QStringList names = m_names.mid(m_next, count);
    m_next += names.size();
    if (m_next >= m_names.size())
        m_next = 0;
    return names;
}

} // namespace Viewer::CameraSettings
