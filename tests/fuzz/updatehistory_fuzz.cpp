#include "fuzztarget.h"
#include "viewer/update/updatehistory.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Viewer::Update;

/// Whatever the bytes of the history are, a record that is added to it is its newest one from then
/// on, and takes nothing away.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // In memory: each record waits until the disk has it.
    static const QTemporaryDir folder("/dev/shm/updatehistory-XXXXXX");
    static const QString path = folder.filePath("history.jsonl");
    const QByteArray text = Fuzz::toBytes(data, size);
    QFile file(path);
    Fuzz::require(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();

    const CUpdateHistory history(path);
    const CUpdateHistory::CContent before = history.read();
    Fuzz::require(before.error.isEmpty());
    CUpdateRecord record;
    if (!before.records.isEmpty())
        record = before.records.constLast();
    record.begin = QDateTime({2026, 1, 15}, {6, 42, 11}, Qt::UTC);
    record.cameraId = "added";
    Fuzz::require(history.append(record).isEmpty());
    const CUpdateHistory::CContent after = history.read();
    Fuzz::require(after.records.constFirst().cameraId == "added");
    Fuzz::require(toJson(after.records.constFirst()) == toJson(record));
    Fuzz::require(after.records.size() == before.records.size() + 1);
    Fuzz::require(after.damagedCount == before.damagedCount);
    Fuzz::require(file.open(QIODevice::ReadOnly) && file.readAll().startsWith(text));
    return 0;
}
