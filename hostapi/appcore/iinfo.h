#pragma once

#include "hostapi_global.h"

#include <QObject>

namespace Plugin::AppCore {

/// Root of the information objects that the host hands out. Information objects are immutable
/// snapshots without a parent object, shared through `QSharedPointer`, and may be held for as long
/// as the holder likes.
class HOSTAPI_EXPORT IInfo : public QObject
{
    Q_OBJECT

public:
    explicit IInfo(QObject *parent = nullptr);
    ~IInfo() override;
};

} // namespace Plugin::AppCore
