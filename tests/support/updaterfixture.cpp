#include "updaterfixture.h"

#include <QFile>
#include <QRegularExpression>

namespace TestSupport {

using Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService;

CUpdaterFixture::CUpdaterFixture()
    : model(new Model(nullptr))
{
    qputenv("TMPDIR", temporaryFolder.path().toLocal8Bit());
    service.reset(new CFirmwareUpdaterService(&host.initializer, nullptr));
    host.initializer.addService(service);
}

CUpdaterFixture::~CUpdaterFixture()
{
    host.initializer.removeService(service);
    qunsetenv("TMPDIR");
}

QStringList CUpdaterFixture::getLog() const
{
    static const QRegularExpression format(QStringLiteral(
        "^\\w{3} \\w{3} \\d+ \\d\\d:\\d\\d:\\d\\d \\d{4} ((?:DEBUG|INFO|WARNING|CRITICAL) .*)$"));

    QFile file(service->getCurrentTemporaryLogFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return {"no log file"};
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    for (QString &line : lines) {
        const QRegularExpressionMatch match = format.match(line);
        line = match.hasMatch() ? match.captured(1) : "malformed line: " + line;
    }
    return lines;
}

CUpdaterFixture::Entity *CUpdaterFixture::makeTickedCamera(const CCameraDescription &description,
                                                           CScriptedUpdate *job)
{
    auto *const node = new Entity;
    node->setEntityType(Entity::EFirmwareUpdateEntityType::CameraDevice);
    node->setCameraInfo(makeCamera(description));
    node->setSelected(true);
    node->setDeviceFirmwareUpdate(Plugin::CameraPool::DeviceFirmwareUpdatePtr(job));
    return node;
}

void CUpdaterFixture::tick(Model &model, const QModelIndex &row, bool on)
{
    model.setData(row, on, Qt::EditRole);
    model.updateAllNodesBySelection(row);
}

} // namespace TestSupport
