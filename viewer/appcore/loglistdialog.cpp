#include "loglistdialog.h"

#include "logsummary.h"
#include "textdialog.h"

#include "viewer/files/fileend.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QUrl>

namespace Viewer::AppCore {

static constexpr int CAMERAS_COLUMN = 1;
static constexpr int PATH_ROLE = Qt::UserRole + 1;
static constexpr int MAXIMUM_NAMES_LENGTH = 300;

CLogListDialog::CLogListDialog(const CLogFolder &folder, QWidget *parent)
    : CListDialog(tr("Logs of firmware updates"), {tr("Time"), tr("Cameras"), tr("Outcome")},
                  parent)
    , m_root(folder.getRoot())
{
    setObjectName(QStringLiteral("logListDialog"));
    resize(640, 420);
    getTree()->setObjectName(QStringLiteral("logTree"));
    getTree()->header()->setStretchLastSection(false);
    getTree()->header()->setSectionResizeMode(CAMERAS_COLUMN, QHeaderView::Stretch);
    const QVector<CLogFile> logs = folder.getLogs().mid(0, CLogFolder::MAXIMUM_COUNT);
    for (const CLogFile &log : logs)
        addEntry(log);
    if (logs.isEmpty())
        setDetails(tr("There are no logs yet."));
    setHint(folder.getFault());
    createButtons();
}

CLogListDialog::~CLogListDialog() = default;

void CLogListDialog::createButtons()
{
    const auto create = [this](const QString &text, const char *name, auto slot, bool isEnabled) {
        QPushButton *const button = addButton(text, name);
        button->setEnabled(isEnabled);
        connect(button, &QPushButton::clicked, this, slot);
    };
    const bool hasLogs = getTree()->topLevelItemCount() > 0;
    create(tr("&Open"), "openButton", &CLogListDialog::openCurrent, hasLogs);
    create(tr("&Copy"), "copyButton", &CLogListDialog::copyCurrent, hasLogs);
    create(tr("Open &folder"), "folderButton", &CLogListDialog::openFolder,
           QFileInfo(m_root).isDir());
    connect(getTree(), &QTreeWidget::itemActivated, this, &CLogListDialog::openCurrent);
}

// @p isInUse: the viewer that writes the log still runs, so that its end may be to come.
static QString getOutcomeText(const CLogSummary &summary, bool isInUse)
{
    QString text;
    switch (summary.outcome) {
    case CLogSummary::EOutcome::NoUpdate:
        return CLogListDialog::tr("No update");
    case CLogSummary::EOutcome::Successful:
        return CLogListDialog::tr("Successful");
    case CLogSummary::EOutcome::Failed:
        text = CLogListDialog::tr("Failed (%1 of %2 updated)");
        break;
    case CLogSummary::EOutcome::Canceled:
        text = CLogListDialog::tr("Canceled (%1 of %2 updated)");
        break;
    case CLogSummary::EOutcome::Interrupted:
        text = isInUse ? CLogListDialog::tr("Running (%1 of %2 updated)")
                       : CLogListDialog::tr("Interrupted (%1 of %2 updated)");
        break;
    }
    return text.arg(summary.updatedCount).arg(summary.cameraCount);
}

void CLogListDialog::addEntry(const CLogFile &log)
{
    const Files::CFileEnd end = Files::CFileEnd::read(log.path, MAXIMUM_LOG_SIZE);
    const CLogSummary summary = CLogSummary::parse(end.text);
    QString names = summary.cameraNames.join(QStringLiteral(", "));
    if (names.size() > MAXIMUM_NAMES_LENGTH)
        names = names.left(MAXIMUM_NAMES_LENGTH) + QStringLiteral("...");
    QString outcome = getOutcomeText(summary, log.inUse);
    QStringList details{QDir::toNativeSeparators(log.path)};
    if (!end.error.isEmpty()) {
        outcome = tr("Cannot be read");
        details.append(end.error);
    } else if (end.isPartial) {
        details.append(
            tr("The log is longer than %1 bytes; only its end was read.").arg(MAXIMUM_LOG_SIZE));
    }
    if (!names.isEmpty())
        details.append(names);
    addRow({log.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), names, outcome},
           details.join(QLatin1Char('\n')))
        ->setData(0, PATH_ROLE, log.path);
}

void CLogListDialog::openCurrent()
{
    CTextDialog::showFile(getCurrentPath(), this);
}

void CLogListDialog::copyCurrent()
{
    const Files::CFileEnd end
        = Files::CFileEnd::read(getCurrentPath(), CTextDialog::MAXIMUM_FILE_SIZE);
    if (end.error.isEmpty())
        QGuiApplication::clipboard()->setText(QString::fromUtf8(end.text));
    else
        setDetails(end.error);
}

void CLogListDialog::openFolder() const
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(m_root));
}

QString CLogListDialog::getCurrentPath() const
{
    return getTree()->currentItem()->data(0, PATH_ROLE).toString();
}

} // namespace Viewer::AppCore
