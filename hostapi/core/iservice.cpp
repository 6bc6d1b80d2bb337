#include "iservice.h"

namespace Core::Service {

IService::IService(QObject *parent)
    : QObject(parent)
{
}

IService::~IService() = default;

} // namespace Core::Service
