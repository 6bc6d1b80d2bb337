#include "imagegrid.h"

#include "imagetile.h"
#include "imageview.h"

#include <QGridLayout>

#include <cmath>

namespace Viewer::ImageView {

CImageGrid::CImageGrid(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QGridLayout(this))
{
    m_layout->setContentsMargins({});
    m_layout->setSpacing(0);
    arrange();
}

CImageGrid::~CImageGrid() = default;

void CImageGrid::setAcquiring(const QString &cameraId, const QString &name, bool isAcquiring)
{
    if (m_acquiring.contains(cameraId) == isAcquiring)
        return;
    m_names.insert(cameraId, name);
    if (isAcquiring)
        m_acquiring.append(cameraId);
    else
        m_acquiring.removeOne(cameraId);
    arrange();
}

void CImageGrid::setSelected(const QString &cameraId, const QString &name)
{
    m_names.insert(cameraId, name);
    m_selected = cameraId;
    arrange();
}

void CImageGrid::setOptions(bool showsSaturation, bool showsHistogram)
{
    m_showsSaturation = showsSaturation;
    m_showsHistogram = showsHistogram;
    for (CImageTile *const tile : qAsConst(m_tiles))
        tile->setOptions(showsSaturation, showsHistogram);
}

void CImageGrid::setContextMenu(QMenu *menu)
{
    m_contextMenu = menu;
    for (CImageTile *const tile : qAsConst(m_tiles))
        tile->getView()->setContextMenu(menu);
}

CImageTile *CImageGrid::findTile(const QString &cameraId) const
{
    return m_tiles.value(cameraId);
}

CImageTile *CImageGrid::getSelectedTile() const
{
    return findTile(m_selected);
}

QStringList CImageGrid::getShownIds() const
{
    return m_shownIds;
}

void CImageGrid::arrange()
{
    QStringList ids = m_acquiring;
    if (!ids.contains(m_selected) && (!m_selected.isEmpty() || ids.isEmpty()))
        ids.append(m_selected);
    const bool isSelectedBeyond = ids.indexOf(m_selected) >= MAXIMUM_COUNT;
    ids = ids.mid(0, MAXIMUM_COUNT);
    if (isSelectedBeyond)
        ids.last() = m_selected;

    const QStringList oldIds = m_tiles.keys();
    for (const QString &id : oldIds) {
        if (ids.contains(id))
            continue;
        // It may be in an event of its own.
        CImageTile *const tile = m_tiles.take(id);
        m_layout->removeWidget(tile);
        tile->hide();
        tile->deleteLater();
    }
    const int oldColumns = m_layout->columnCount();
    const int oldRows = m_layout->rowCount();
    const int columns = static_cast<int>(std::ceil(std::sqrt(ids.size())));
    for (int place = 0; place < ids.size(); ++place) {
        const QString &id = ids.at(place);
        CImageTile *const tile = m_tiles.contains(id) ? m_tiles.value(id) : createTile(id);
        tile->setName(m_names.value(id));
        tile->setFramed(id == m_selected && ids.size() > 1);
        m_layout->addWidget(tile, place / columns, place % columns);
    }
    // A layout never forgets rows and columns that it had; without a stretch they take no room.
    const int rows = (ids.size() + columns - 1) / columns;
    for (int column = 0; column < qMax(columns, oldColumns); ++column)
        m_layout->setColumnStretch(column, column < columns ? 1 : 0);
    for (int row = 0; row < qMax(rows, oldRows); ++row)
        m_layout->setRowStretch(row, row < rows ? 1 : 0);
    m_shownIds = ids;
}

CImageTile *CImageGrid::createTile(const QString &cameraId)
{
    auto *const tile = new CImageTile(this);
    tile->setOptions(m_showsSaturation, m_showsHistogram);
    tile->getView()->setContextMenu(m_contextMenu);
    // While it waits for its image.
    tile->setPlaceholder(m_names.value(cameraId), {});
    connect(tile->getView(), &CImageView::activated, this,
            [this, cameraId] { emit cameraActivated(cameraId); });
    connect(tile, &CImageTile::pictureReady, this, &CImageGrid::pictureReady);
    m_tiles.insert(cameraId, tile);
    return tile;
}

} // namespace Viewer::ImageView
