#include "interruptedupdates.h"

#include "updatehistory.h"
#include "updatejournal.h"

#include <algorithm>

namespace Viewer::Update {

/// Ended between the two, its process has written into the history, but not removed the journal.
static bool isInHistory(const QString &journalFolder, const CUpdateRecord &record)
{
    const CUpdateHistory::CContent history
        = CUpdateHistory(CUpdateHistory::getPath(journalFolder)).read();
    const QByteArray text = toJson(record);
    return std::any_of(history.records.begin(), history.records.end(),
                       [&text](const CUpdateRecord &other) { return toJson(other) == text; });
}

QVector<CUpdateRecord> takeInterruptedUpdates(const QString &journalFolder)
{
    QVector<CUpdateRecord> interrupted;
    const QVector<CJournalEntry> entries = readJournals(journalFolder).entries;
    for (const CJournalEntry &entry : entries) {
        if (entry.isRunning)
            continue;
        if (entry.record.outcome == EUpdateOutcome::Running) {
            interrupted.append(entry.record);
        } else {
            if (!isInHistory(journalFolder, entry.record))
                CUpdateHistory::add(journalFolder, entry.record);
            removeJournal(journalFolder, entry.record.cameraId);
        }
    }
    return interrupted;
}

void dismissInterruptedUpdate(const QString &journalFolder, const CUpdateRecord &record)
{
    CUpdateHistory::add(journalFolder, toInterrupted(record));
    removeJournal(journalFolder, record.cameraId);
}

} // namespace Viewer::Update
