#pragma once

#include "model/firmwareupdateentity.h"

#include <QModelIndex>
#include <QPointer>
#include <QSize>

namespace Plugin::FirmwareUpdater::Internal::View {

/// A row of a camera tree as the delegates see it: the entity behind it, and what its kind and its
/// place say about its geometry.
class CTreeRow
{
public:
    /// The row's entity is found also through a sorting proxy. An invalid index gives a row without
    /// entity.
    explicit CTreeRow(const QModelIndex &index);

    [[nodiscard]] bool isValid() const;
    [[nodiscard]] QPointer<Entity::CFirmwareUpdateEntity> getEntity() const;

    [[nodiscard]] bool isTransportLayer() const;
    [[nodiscard]] bool isCameraType() const;

    /// A camera below a model group of the whole tree, drawn indented; not one of a flat list.
    [[nodiscard]] bool isDirectCamera() const;

    /// The first row below its parent.
    [[nodiscard]] bool isFirst() const;

    /// The first camera of a flat list, which keeps a gap to the header.
    [[nodiscard]] bool isFirstListedCamera() const;

    /// The size hint of a cell for which a delegate usually gives @p hint: the row's height in
    /// pixels, in which the font has no part. @p hint itself without an entity.
    [[nodiscard]] QSize getSizeHint(const QSize &hint) const;

private:
    [[nodiscard]] int getHeight() const;

    QPointer<Entity::CFirmwareUpdateEntity> m_entity;
    int m_row;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
