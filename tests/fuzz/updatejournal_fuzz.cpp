#include "fuzztarget.h"
#include "viewer/update/updatejournal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Viewer::Update;

static const QString ID = "gige-1";

/// Whatever the bytes of a journal are, they are one record, which can be written and read again
/// the same, or none and counted; and the next update of the camera begins a sound journal in its
/// place.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // In memory: each journal waits until the disk has it.
    static const QTemporaryDir folder("/dev/shm/updatejournal-XXXXXX");
    static const QString path = [] {
        CUpdateRecord record;
        record.cameraId = ID;
        const CUpdateJournal journal(folder.path(), record);
        return QDir(folder.path()).entryInfoList(QDir::Files).value(0).filePath();
    }();
    QFile file(path);
    Fuzz::require(file.open(QIODevice::WriteOnly) && file.write(Fuzz::toBytes(data, size)) >= 0);
    file.close();

    const CJournals journals = readJournals(folder.path());
    Fuzz::require(journals.entries.size() + journals.damagedCount == 1);
    CUpdateRecord record;
    record.cameraId = ID;
    for (const CJournalEntry &entry : journals.entries) {
        Fuzz::require(!entry.isRunning && entry.record.cameraId == ID);
        record = entry.record;
    }
    record.begin = QDateTime({2026, 1, 15}, {6, 42, 11}, Qt::UTC);
    const CUpdateJournal next(folder.path(), record);
    Fuzz::require(!next.isForeign());
    const CJournals again = readJournals(folder.path());
    Fuzz::require(again.damagedCount == 0 && again.entries.size() == 1);
    Fuzz::require(again.entries.constFirst().isRunning);
    Fuzz::require(toJson(again.entries.constFirst().record) == toJson(record));
    return 0;
}
