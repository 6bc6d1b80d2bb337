#pragma once

#include "cameraselection.h"
#include "ireport.h"
#include "updatelog.h"
#include "updaterequest.h"
#include "updateseries.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>

#include <memory>

namespace Viewer::CameraPool {
class CCameraPool;
}

namespace Viewer::NuvexUpdate {

class CQuestion;
class CReportGroup;

/// One run of nuvexupdate: does what it was asked for with the cameras that it finds. GUI thread,
/// although there is no GUI.
class CUpdateProgram : public QObject
{
    Q_OBJECT

public:
    /// Updates speak the @p language. @p output and @p warnings are borrowed.
    CUpdateProgram(CUpdateRequest request, const QString &language, COutput &output,
                   COutput &warnings, QObject *parent = nullptr);
    ~CUpdateProgram() override;

    /// Begins; needs the event loop.
    void start();

    /// Somebody wants the program to end: no further camera begins, and those that run are
    /// finished.
    void requestStop();

    /// The standard output is gone.
    void onOutputLost(const QString &reason);

signals:
    /// Once, from the event loop.
    void finished(int exitCode);

private:
    using InfoPtr = CCameraVerdict::InfoPtr;

    void openPool();
    void setSignaturePolicy();
    void onEnumerated();
    void listCameras();
    void checkFile();
    void showHistory();
    void prepareUpdate();
    void prepareResume();
    /// False: the file is faulty, which is told.
    [[nodiscard]] bool readFile(const QString &path, QVector<InfoPtr> &entries);
    /// Sorts @p verdicts into those to be updated and those left alone, and goes on with them.
    void decide(const QVector<CCameraVerdict> &verdicts, bool takesAll);
    void leaveAlone(const CCameraVerdict &verdict, EOutcome outcome, const QString &reason);
    void confirm();
    void onAnswered(bool isYes);
    void startSeries();
    void onSeriesFinished();
    [[nodiscard]] EExitCode judge(const QVector<CCameraRun> &runs) const;
    void fail(EExitCode exitCode, const CMessage &message);
    void finish(EExitCode exitCode);
    void say(const QString &key, const QString &text);
    void warn(const QString &key, const QString &text);

    CUpdateRequest m_request;
    const QString m_language;
    const QString m_journalFolder;
    COutput &m_output;
    COutput &m_warnings;
    std::unique_ptr<CReportGroup> m_report;
    std::unique_ptr<CUpdateLog> m_log;
    std::unique_ptr<CameraPool::CCameraPool> m_pool;
    CCameraSelection::CameraInfos m_cameras; ///< all that were found
    QVector<CCameraVerdict> m_planned;
    QVector<CCameraRun> m_leftAlone;
    std::unique_ptr<CQuestion> m_question;
    std::unique_ptr<CUpdateSeries> m_series;
    QMap<QString, Signature::CSignatureVerdict> m_signatures; ///< of files that were read, by path
    QElapsedTimer m_timer;
    bool m_isStopped = false;
    bool m_isFinished = false;
};

} // namespace Viewer::NuvexUpdate
