#include "workertask.h"

#include "viewer/process/cborinteger.h"

#include <QCborArray>
#include <QFileInfo>

#include <limits>

namespace Viewer::Update {

static const QString PROTOCOL_FIELD = QStringLiteral("protocol");
static const QString COMMAND = QStringLiteral("command");
static const QString UPDATE = QStringLiteral("update");
static const QString KIND = QStringLiteral("kind");
static const QString CAMERA = QStringLiteral("camera");
static const QString FILE = QStringLiteral("file");
static const QString MANIFEST_DIGEST = QStringLiteral("manifestSha256");
static const QString ENTRY = QStringLiteral("entry");
static const QString JOURNAL_FOLDER = QStringLiteral("journalFolder");
static const QString RECORD = QStringLiteral("record");
static const QString LANGUAGE = QStringLiteral("language");
static const QString REQUIRE_SIGNATURE = QStringLiteral("requireSignature");
static const QString TRUST_FOLDERS = QStringLiteral("trustFolders");

static constexpr int DIGEST_SIZE = 32;

QCborMap CWorkerTask::toCbor() const
{
    return {{PROTOCOL_FIELD, PROTOCOL},
            {COMMAND, UPDATE},
            {KIND, kind},
            {CAMERA, camera},
            {FILE, filePath},
            {MANIFEST_DIGEST, manifestDigest},
            {ENTRY, entry},
            {LANGUAGE, language},
            {REQUIRE_SIGNATURE, requiresSignature},
            {TRUST_FOLDERS, QCborArray::fromStringList(trustFolders)},
            {JOURNAL_FOLDER, journalFolder},
            {RECORD, record}};
}

std::optional<CWorkerTask> CWorkerTask::fromCbor(const QCborMap &map, QString &fault)
{
    CWorkerTask task;
    task.kind = map.value(KIND).toString();
    task.camera = map.value(CAMERA).toMap();
    task.filePath = map.value(FILE).toString();
    task.manifestDigest = map.value(MANIFEST_DIGEST).toByteArray();
    task.journalFolder = map.value(JOURNAL_FOLDER).toString();
    task.record = map.value(RECORD).toByteArray();
    task.language = map.value(LANGUAGE).toString();
    task.requiresSignature = map.value(REQUIRE_SIGNATURE).toBool();
    const QCborArray folders = map.value(TRUST_FOLDERS).toArray();
    for (const auto &folder : folders)
        task.trustFolders.append(folder.toString());
    const qint64 entry = Process::toInteger(map.value(ENTRY), -1);
    if (Process::toInteger(map.value(PROTOCOL_FIELD), -1) != PROTOCOL)
        fault = QStringLiteral("the task is not of protocol %1").arg(PROTOCOL);
    else if (map.value(COMMAND).toString() != UPDATE)
        fault = QStringLiteral("the task has no command that is known");
    else if (task.kind.isEmpty() || task.camera.isEmpty())
        fault = QStringLiteral("the task has no camera");
    else if (!QFileInfo(task.filePath).isAbsolute())
        fault = QStringLiteral("the task has no absolute path of an update file");
    else if (task.manifestDigest.size() != DIGEST_SIZE)
        fault = QStringLiteral("the task has no SHA-256 of a manifest");
    else if (entry < 0 || entry > std::numeric_limits<int>::max())
        fault = QStringLiteral("the task has no entry of the manifest");
    if (!fault.isEmpty())
        return std::nullopt;
    task.entry = static_cast<int>(entry);
    return task;
}

} // namespace Viewer::Update
