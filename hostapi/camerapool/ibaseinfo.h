#pragma once

#include "appcore/iinfo.h"

#include <QSharedPointer>
#include <QString>

namespace Plugin::CameraPool {

/// What cameras and transport layers have in common. An immutable snapshot: when anything changes,
/// the next enumeration hands out a new object. Read on the GUI thread.
class HOSTAPI_EXPORT IBaseInfo : public Plugin::AppCore::IInfo
{
    Q_OBJECT

public:
    explicit IBaseInfo(QObject *parent = nullptr);
    ~IBaseInfo() override;

    /// The text to show to the user.
    [[nodiscard]] virtual QString getDisplayName() const = 0;

    /// Unique among all cameras and layers, stable over re-enumeration and reset, compared
    /// case-sensitively.
    [[nodiscard]] virtual QString getId() const = 0;
};

} // namespace Plugin::CameraPool
