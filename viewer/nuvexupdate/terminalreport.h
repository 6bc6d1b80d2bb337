#pragma once

#include "textreport.h"

#include <QObject>
#include <QTimer>

namespace Viewer::NuvexUpdate {

/// For people at a terminal: below the lines of what has ended, one for each camera that runs, with
/// its bar, step and time left, and one with the counts. They are drawn anew in their place.
class CTerminalReport : public QObject, public CTextReport
{
    Q_OBJECT

public:
    /// @p output is a terminal; borrowed like @p warnings.
    CTerminalReport(COutput &output, COutput &warnings);

    void showBegin(const QVector<CCameraRun> &runs, int index) override;
    void showStep(const QVector<CCameraRun> &runs, int index) override;
    void showProgress(const QVector<CCameraRun> &runs, int index) override;
    void showEnd(const QVector<CCameraRun> &runs, int index) override;
    void showSummary(const CSummary &summary) override;

protected:
    void print(const QString &line) override;
    void printWarning(const QString &line) override;

private:
    void clear();
    void draw();
    void keepDrawing(const QVector<CCameraRun> &runs);
    [[nodiscard]] QString paint(const QString &text, const char *color) const;
    [[nodiscard]] QString describeRunning(const CCameraRun &run, int width) const;

    const bool m_hasColors;
    QVector<CCameraRun> m_runs; ///< shares its memory with the series'
    QTimer m_timer;
    int m_drawnLines = 0;
};

} // namespace Viewer::NuvexUpdate
