#pragma once

#include <QString>
#include <QVector>

namespace Viewer::Camera {

/// What an enumeration found out about one camera. A value that crosses threads.
struct CCameraSnapshot
{
    QString id;
    QString displayName;
    QString modelName;
    QString serialNumber;
    QString deviceVersion;
    QString firmwareVersion;
    qint32 statusCode = 0; ///< 0 exactly when the camera can be updated
    QString statusReason; ///< of another status, for the user; may be empty
    QString ipAddress; ///< empty: none, or unknown
    QString macAddress; ///< the same

    friend bool operator==(const CCameraSnapshot &left, const CCameraSnapshot &right)
    {
        return left.id == right.id && left.displayName == right.displayName
            && left.modelName == right.modelName && left.serialNumber == right.serialNumber
            && left.deviceVersion == right.deviceVersion
            && left.firmwareVersion == right.firmwareVersion && left.statusCode == right.statusCode
            && left.statusReason == right.statusReason && left.ipAddress == right.ipAddress
            && left.macAddress == right.macAddress;
    }
    friend bool operator!=(const CCameraSnapshot &left, const CCameraSnapshot &right)
    {
        return !(left == right);
    }
};

/// One transport layer and the cameras found on it, in the order in which they were found.
struct CTransportLayerSnapshot
{
    QString id;
    QString displayName;
    QVector<CCameraSnapshot> cameras;
};

} // namespace Viewer::Camera
