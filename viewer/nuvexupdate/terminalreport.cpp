#include "terminalreport.h"

#include "viewer/text/displaywidth.h"

#include <algorithm>
#include <cmath>

namespace Viewer::NuvexUpdate {

namespace {

constexpr int DRAW_INTERVAL = 200; // milliseconds
constexpr int USUAL_WIDTH = 80;
constexpr int USUAL_HEIGHT = 24;
constexpr int BAR_WIDTH = 20;
/// What stands behind the name takes so much; on a narrower terminal the bar goes first.
constexpr int WIDTH_WITH_BAR = 72;
constexpr int WIDTH_WITH_STEP = 44;

const char *const GREEN = "32";
const char *const RED = "31";

QString formatTime(std::chrono::milliseconds time)
{
    const qint64 seconds = (time.count() + 999) / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60, 2).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

CTerminalReport::CTerminalReport(COutput &output, COutput &warnings)
    : CTextReport(output, warnings)
    , m_hasColors(qEnvironmentVariableIsEmpty("NO_COLOR"))
{
    m_timer.setInterval(DRAW_INTERVAL);
    connect(&m_timer, &QTimer::timeout, this, &CTerminalReport::draw);
}

void CTerminalReport::showBegin(const QVector<CCameraRun> &runs, int)
{
    keepDrawing(runs);
}

void CTerminalReport::showStep(const QVector<CCameraRun> &runs, int)
{
    keepDrawing(runs);
}

void CTerminalReport::showProgress(const QVector<CCameraRun> &runs, int)
{
    keepDrawing(runs);
}

void CTerminalReport::showEnd(const QVector<CCameraRun> &runs, int index)
{
    keepDrawing(runs);
    print(paint(describeEnd(runs.at(index)),
                runs.at(index).outcome == EOutcome::Updated ? GREEN : RED));
}

void CTerminalReport::showSummary(const CSummary &summary)
{
    m_timer.stop();
    clear();
    m_runs.clear();
    CTextReport::showSummary(summary);
}

void CTerminalReport::print(const QString &line)
{
    clear();
    CTextReport::print(line);
    draw();
}

void CTerminalReport::printWarning(const QString &line)
{
    clear();
    CTextReport::printWarning(paint(line, RED));
    draw();
}

void CTerminalReport::keepDrawing(const QVector<CCameraRun> &runs)
{
    m_runs = runs;
    if (m_timer.isActive())
        return;
    m_timer.start();
    draw();
}

void CTerminalReport::clear()
{
    if (m_drawnLines > 0)
        getOutput().write("\x1b[" + QByteArray::number(m_drawnLines) + "A\x1b[J");
    m_drawnLines = 0;
}

void CTerminalReport::draw()
{
    if (!m_timer.isActive())
        return;
    const int columns = getOutput().getWidth() > 0 ? getOutput().getWidth() : USUAL_WIDTH;
    const int rows = getOutput().getHeight() > 0 ? getOutput().getHeight() : USUAL_HEIGHT;
    // One line for the counts, and one where the cursor stands.
    const int places = std::max(rows - 2, 1);
    QStringList lines;
    for (const CCameraRun &run : qAsConst(m_runs)) {
        if (run.outcome == EOutcome::Running && lines.size() < places)
            lines.append(describeRunning(run, columns - 1));
    }
    lines.append(Text::cutToWidth(describeCounts(m_runs), columns - 1));
    // All at once, lest it flickers.
    const QByteArray back
        = m_drawnLines > 0 ? "\x1b[" + QByteArray::number(m_drawnLines) + "A\x1b[J" : QByteArray();
    m_drawnLines = lines.size();
    getOutput().write(back + lines.join(QLatin1Char('\n')).toUtf8() + '\n');
}

QString CTerminalReport::describeRunning(const CCameraRun &run, int width) const
{
    QString text = QStringLiteral("%1 %").arg(std::floor(run.getPercent()), 3);
    if (width >= WIDTH_WITH_BAR) {
        const int full = static_cast<int>(run.getPercent() * BAR_WIDTH / 100);
        text = QStringLiteral("[%1%2] %3")
                   .arg(QString(full, QLatin1Char('#')),
                        QString(BAR_WIDTH - full, QLatin1Char('.')), text);
    }
    text += QLatin1Char(' ') + tr("%1 left").arg(formatTime(run.getTimeLeft()));
    if (width >= WIDTH_WITH_STEP)
        text += QStringLiteral("  %1/%2 %3")
                    .arg(QString::number(run.step), QString::number(run.stepCount), run.stepName);
    return Text::cutToWidth(QStringLiteral("%1  %2").arg(text, run.getName()), width);
}

QString CTerminalReport::paint(const QString &text, const char *color) const
{
    return m_hasColors ? QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QLatin1String(color), text) : text;
}

} // namespace Viewer::NuvexUpdate
