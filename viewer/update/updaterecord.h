#pragma once

#include "viewer/json/jsonscanner.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Viewer::Update {

/// How an update ended, or that it has not.
enum class EUpdateOutcome {
    Running,
    Updated,
    Failed,
    Canceled, ///< before anything was written
    Interrupted, ///< the process ended in the middle of it
};

/// What is told about one update of one camera, while it runs and for ever after. Texts of cameras
/// and files are as they came; whoever shows them makes them visible first.
struct CUpdateRecord
{
    QString cameraId;
    QString cameraName; ///< what messages call it
    QString modelName;
    QString serialNumber;
    QString address; ///< empty: none, or unknown
    QString oldVersion;
    QString newVersion; ///< as the update file promises
    QString filePath; ///< absolute
    QByteArray manifestDigest; ///< SHA-256 of update.json, 32 bytes; empty: unknown
    int step = 0; ///< the current or last one, from 1; 0: none has begun
    int stepCount = 0;
    QString stepName; ///< of the kind of step, like "FileUpload"; empty: none has begun
    int percent = 0; ///< of the step, 0 to 100
    bool hasWritten = false; ///< the camera has, or may have, changed
    QDateTime begin; ///< UTC, to the second
    QDateTime end; ///< UTC; invalid: it has not ended
    EUpdateOutcome outcome = EUpdateOutcome::Running;
    QString error; ///< English, one line; empty: none
    QString reportedVersion; ///< what the camera said last; empty: it was not asked
    QString logPath; ///< empty: unknown
};

/// How many percent of its steps the update has behind itself, 0 to 100.
[[nodiscard]] int getTotalPercent(const CUpdateRecord &record);

/// What the history keeps of @p record, whose process ended in the middle of it. When that was,
/// nobody knows.
[[nodiscard]] CUpdateRecord toInterrupted(CUpdateRecord record);

/// One line of JSON, without a line end.
[[nodiscard]] QByteArray toJson(const CUpdateRecord &record);

/// Reads such an object. Throws Json::CJsonFault.
[[nodiscard]] CUpdateRecord readUpdateRecord(Json::CJsonScanner &scanner);

} // namespace Viewer::Update
