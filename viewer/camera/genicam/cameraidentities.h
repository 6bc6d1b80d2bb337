#pragma once

#include "foundcamera.h"

#include <QHash>
#include <QSet>
#include <QVector>

namespace Viewer::Camera::GenICam {

/// Gives cameras their ids, the same one to each camera whenever it is found again. Two that say
/// that they are the same one are told apart by their hardware address, else by where they were
/// found. Any thread, one at a time.
class CCameraIdentities
{
public:
    /// Fills in the id of each of @p cameras, which were found together, and whether it is
    /// ambiguous.
    void assign(QVector<CFoundCamera> &cameras);

private:
    struct CKnownCamera
    {
        QString id;
        QString hardwareAddress;
        QString address; ///< where it was found last
    };

    /// The same for cameras that say that they are the same one.
    void assign(const QVector<CFoundCamera *> &twins, QVector<CKnownCamera> &known);
    [[nodiscard]] QString makeId(const CFoundCamera &camera, bool isFirst);

    QHash<QString, QVector<CKnownCamera>> m_known; ///< by identity
    QSet<QString> m_ids; ///< all of them
};

} // namespace Viewer::Camera::GenICam
