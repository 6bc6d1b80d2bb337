#include "reportgroup.h"

#include <utility>

namespace Viewer::NuvexUpdate {

void CReportGroup::add(std::unique_ptr<IReport> report)
{
    m_reports.push_back(std::move(report));
}

void CReportGroup::showCameras(const QVector<Camera::CCameraSnapshot> &cameras)
{
    call(&IReport::showCameras, cameras);
}

void CReportGroup::showSignature(const QString &filePath,
                                 const Signature::CSignatureVerdict &verdict)
{
    call(&IReport::showSignature, filePath, verdict);
}

void CReportGroup::showEntries(const QVector<UpdateFile::CUpdateEntry> &entries)
{
    call(&IReport::showEntries, entries);
}

void CReportGroup::showVerdicts(const QVector<CCameraVerdict> &verdicts)
{
    call(&IReport::showVerdicts, verdicts);
}

void CReportGroup::showHistory(const Update::CUpdateHistoryModel &history)
{
    call(&IReport::showHistory, history);
}

void CReportGroup::inform(const CMessage &message)
{
    call(&IReport::inform, message);
}

void CReportGroup::warn(const CMessage &message)
{
    call(&IReport::warn, message);
}

void CReportGroup::showBegin(const QVector<CCameraRun> &runs, int index)
{
    call(&IReport::showBegin, runs, index);
}

void CReportGroup::showStep(const QVector<CCameraRun> &runs, int index)
{
    call(&IReport::showStep, runs, index);
}

void CReportGroup::showProgress(const QVector<CCameraRun> &runs, int index)
{
    call(&IReport::showProgress, runs, index);
}

void CReportGroup::showEnd(const QVector<CCameraRun> &runs, int index)
{
    call(&IReport::showEnd, runs, index);
}

void CReportGroup::showSummary(const CSummary &summary)
{
    call(&IReport::showSummary, summary);
}

} // namespace Viewer::NuvexUpdate
