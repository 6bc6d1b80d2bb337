#pragma once

#include "ireport.h"
#include "output.h"

#include <QJsonObject>

namespace Viewer::NuvexUpdate {

/// For programs: one JSON object a line, each with "event" and "time".
class CJsonReport : public IReport
{
public:
    /// Borrowed.
    explicit CJsonReport(COutput &output);

    void showCameras(const QVector<Camera::CCameraSnapshot> &cameras) override;
    void showSignature(const QString &filePath,
                       const Signature::CSignatureVerdict &verdict) override;
    void showEntries(const QVector<UpdateFile::CUpdateEntry> &entries) override;
    void showVerdicts(const QVector<CCameraVerdict> &verdicts) override;
    void showHistory(const Update::CUpdateHistoryModel &history) override;
    void inform(const CMessage &message) override;
    void warn(const CMessage &message) override;
    void showBegin(const QVector<CCameraRun> &runs, int index) override;
    void showStep(const QVector<CCameraRun> &runs, int index) override;
    void showProgress(const QVector<CCameraRun> &runs, int index) override;
    void showEnd(const QVector<CCameraRun> &runs, int index) override;
    void showSummary(const CSummary &summary) override;

private:
    void print(const char *event, QJsonObject object);

    COutput &m_output;
};

} // namespace Viewer::NuvexUpdate
