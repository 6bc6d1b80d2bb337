#pragma once

#include "hostapi_global.h"

#include <QObject>

namespace Core::Service {

/// Base of everything that plug-ins and host publish to each other. A service lives in the GUI
/// thread and is handed round in a `QSharedPointer`.
class HOSTAPI_EXPORT IService : public QObject
{
    Q_OBJECT

public:
    explicit IService(QObject *parent = nullptr);
    ~IService() override;
};

} // namespace Core::Service
