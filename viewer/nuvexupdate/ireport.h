#pragma once

#include "camerarun.h"
#include "exitcode.h"
#include "message.h"

#include "viewer/signature/signatureverdict.h"
#include "viewer/update/updatehistorymodel.h"
#include "viewer/updatefile/updatemanifest.h"

#include <QVector>

namespace Viewer::NuvexUpdate {

/// How a run of the program has ended.
struct CSummary
{
    EExitCode exitCode = EExitCode::Done;
    QVector<CCameraRun> cameras; ///< all that were meant
    int seconds = 0;
    bool hasUpdates = false; ///< it was asked to update cameras
};

/// Where the program says what it does. The sentences that it is given are in the user's language;
/// texts of cameras and files are as they came.
class IReport
{
public:
    virtual ~IReport() = default;

    virtual void showCameras(const QVector<Camera::CCameraSnapshot> &cameras) = 0;
    /// Of the update file at @p filePath.
    virtual void showSignature(const QString &filePath, const Signature::CSignatureVerdict &verdict)
        = 0;
    virtual void showEntries(const QVector<UpdateFile::CUpdateEntry> &entries) = 0;
    virtual void showVerdicts(const QVector<CCameraVerdict> &verdicts) = 0;
    virtual void showHistory(const Update::CUpdateHistoryModel &history) = 0;

    /// Nothing is wrong.
    virtual void inform(const CMessage &message) = 0;

    /// What was asked for cannot be done, or not as a whole.
    virtual void warn(const CMessage &message) = 0;

    // A camera of a series; @p runs are all of them.
    virtual void showBegin(const QVector<CCameraRun> &runs, int index) = 0;
    virtual void showStep(const QVector<CCameraRun> &runs, int index) = 0;
    virtual void showProgress(const QVector<CCameraRun> &runs, int index) = 0;
    virtual void showEnd(const QVector<CCameraRun> &runs, int index) = 0;

    /// The last call.
    virtual void showSummary(const CSummary &summary) = 0;
};

} // namespace Viewer::NuvexUpdate
