#pragma once

#include "updaterecord.h"

#include <QString>
#include <QVector>

#include <chrono>
#include <optional>

namespace Viewer::Update {

/// Says on the disk how far one running update is, for whoever looks when its process has ended in
/// the middle: one file per camera, locked as long as the process runs. A file that cannot be
/// written is told once, as a warning; the update goes on without it. One thread.
class CUpdateJournal
{
public:
    /// Begins the journal of @p record, in the @p folder, which is made where it is missing, in
    /// place of one that an update left behind. An empty folder: nothing is kept.
    CUpdateJournal(const QString &folder, const CUpdateRecord &record);

    /// Removes the file of an update that has finished, or puts the one back that was left behind
    /// where this update has not come to change the camera. That of an update that has not finished
    /// stays, as of a process that ended.
    ~CUpdateJournal();
    Q_DISABLE_COPY(CUpdateJournal)

    /// Somebody else, in this process or in another one, updates the camera and keeps its journal.
    /// This one then changes nothing.
    [[nodiscard]] bool isForeign() const;

    /// On the disk when this returns.
    void beginStep(const QString &name);

    /// The camera may change from here on; on the disk when this returns.
    void beginWriting();

    /// At most once a second; the disk learns it when it likes to. @p percent: 0 to 100.
    void setPercent(int percent);

    /// On the disk when this returns. The file stays until this object goes, so that the outcome
    /// can be kept elsewhere before.
    CUpdateRecord finish(EUpdateOutcome outcome, bool hasWritten, const QString &error,
                         const QString &reportedVersion);

    /// After finish(): the update that was interrupted in the middle of its writing, and whose
    /// place this one has taken for good. Nothing: there was none.
    [[nodiscard]] std::optional<CUpdateRecord> getReplaced() const;

private:
    void readLeftBehind();
    [[nodiscard]] bool lock(const QString &folder);
    void save();
    [[nodiscard]] int replace(const QByteArray &text);
    void warn(int error);

    CUpdateRecord m_record;
    std::optional<CUpdateRecord> m_leftBehind; ///< of an update that had begun to write
    QString m_path; ///< empty: nothing is kept
    int m_file = -1; ///< of the file at the path, locked; -1: none
    int m_percentPosition = -1; ///< in the file; -1: it does not hold this record
    std::chrono::steady_clock::time_point m_percentTime;
    bool m_isForeign = false;
    bool m_isFinished = false;
    bool m_hasWarned = false;
};

/// An update that runs, or that its process left behind.
struct CJournalEntry
{
    CUpdateRecord record;
    bool isRunning = false; ///< its process is alive
};

struct CJournals
{
    QVector<CJournalEntry> entries; ///< the oldest one first
    int damagedCount = 0; ///< of journals that nobody can read
};

/// All journals in @p folder. Any thread, any process.
[[nodiscard]] CJournals readJournals(const QString &folder);

/// Forgets the update of the camera @p cameraId that its process left behind; one that runs stays.
void removeJournal(const QString &folder, const QString &cameraId);

} // namespace Viewer::Update
