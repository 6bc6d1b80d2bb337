#pragma once

#include "ireport.h"
#include "output.h"

#include <QCoreApplication>
#include <QStringList>

namespace Viewer::NuvexUpdate {

/// For people: tables, and one line for each event.
class CTextReport : public IReport
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::NuvexUpdate::CTextReport)

public:
    enum class EStamp {
        None,
        Time, ///< each line begins with the time of day
    };

    /// Both are borrowed. Warnings go to @p warnings.
    CTextReport(COutput &output, COutput &warnings, EStamp stamp = EStamp::None);

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

protected:
    /// All lines go through these.
    virtual void print(const QString &line);
    virtual void printWarning(const QString &line);

    [[nodiscard]] COutput &getOutput() const;

    /// "3 updated, 1 failed, ..."; parts that are 0 are left out.
    [[nodiscard]] static QString describeCounts(const QVector<CCameraRun> &runs);

    [[nodiscard]] static QString describeEnd(const CCameraRun &run);
    [[nodiscard]] static QString describeVersions(const CCameraVerdict &verdict);

private:
    void printTable(const QVector<QStringList> &rows);
    [[nodiscard]] static QString describeOutcome(const CCameraRun &run);
    [[nodiscard]] static QString describeVerdict(const CCameraVerdict &verdict);

    COutput &m_output;
    COutput &m_warnings;
    const EStamp m_stamp;
};

} // namespace Viewer::NuvexUpdate
