#pragma once

#include "ireport.h"

#include <memory>
#include <vector>

namespace Viewer::NuvexUpdate {

/// Hands everything on to several reports.
class CReportGroup : public IReport
{
public:
    void add(std::unique_ptr<IReport> report);

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
    template <typename... Parameters, typename... Arguments>
    void call(void (IReport::*function)(Parameters...), const Arguments &...arguments)
    {
        for (const std::unique_ptr<IReport> &report : m_reports)
            (report.get()->*function)(arguments...);
    }

    std::vector<std::unique_ptr<IReport>> m_reports;
};

} // namespace Viewer::NuvexUpdate
