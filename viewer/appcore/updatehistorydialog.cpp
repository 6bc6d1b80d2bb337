#include "updatehistorydialog.h"

#include "modaldialogwatcher.h"
#include "textdialog.h"
#include "updatehistorysorter.h"
#include "viewer/update/updatehistorymodel.h"

#include "viewer/files/replacefile.h"
#include "viewer/text/csv.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeView>

namespace Viewer::AppCore {

using Update::CUpdateHistory;
using Update::CUpdateHistoryModel;
using Update::CUpdateRecord;

static constexpr int MAXIMUM_COLUMN_WIDTH = 24; // letters; of all columns but the camera's
static constexpr int MAXIMUM_LINE_LENGTH = 300;

CUpdateHistoryDialog::CUpdateHistoryDialog(const CUpdateHistory::CContent &content,
                                           const QLocale &locale, QWidget *parent)
    : CListFrame(tr("Update history"), new QTreeView, parent)
    , m_model(new CUpdateHistoryModel(content.records, locale, this))
    , m_sorter(new CUpdateHistorySorter(locale, this))
    , m_logButton(addButton(tr("Open &log"), "logButton"))
    , m_exportButton(addButton(tr("&Export..."), "exportButton"))
{
    setObjectName(QStringLiteral("updateHistoryDialog"));
    resize(820, 480);
    createFilter();
    createButtons();
    m_sorter->setSourceModel(m_model);

    QTreeView *const view = getView();
    view->setObjectName(QStringLiteral("historyView"));
    view->setModel(m_sorter);
    QHeaderView *const header = view->header();
    header->setSortIndicator(CUpdateHistoryModel::TimeColumn, Qt::DescendingOrder);
    view->setSortingEnabled(true);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(CUpdateHistoryModel::CameraColumn, QHeaderView::Stretch);
    header->setMaximumSectionSize(MAXIMUM_COLUMN_WIDTH
                                  * fontMetrics().horizontalAdvance(QLatin1Char('x')));
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CUpdateHistoryDialog::onCurrentChanged);
    connect(view, &QTreeView::activated, this, &CUpdateHistoryDialog::openLog);

    setFilter({});
    if (!content.error.isEmpty())
        setHint(content.error);
    else if (content.damagedCount > 0)
        setHint(
            tr("%n damaged line(s) of the history were skipped.", nullptr, content.damagedCount));
    if (content.error.isEmpty() && content.records.isEmpty())
        setDetails(tr("No updates yet."));
}

CUpdateHistoryDialog::~CUpdateHistoryDialog() = default;

void CUpdateHistoryDialog::createFilter()
{
    auto *const label = new QLabel(tr("&Filter:"), this);
    auto *const edit = new QLineEdit(this);
    edit->setObjectName(QStringLiteral("filterEdit"));
    edit->setClearButtonEnabled(true);
    label->setBuddy(edit);
    auto *const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(edit);
    addAboveList(row);
    setTabOrder(edit, getView());
    edit->setFocus();
    connect(edit, &QLineEdit::textChanged, this, &CUpdateHistoryDialog::setFilter);
}

void CUpdateHistoryDialog::createButtons()
{
    // Enter within the filter is no click.
    m_logButton->setAutoDefault(false);
    m_exportButton->setAutoDefault(false);
    connect(m_logButton, &QPushButton::clicked, this, &CUpdateHistoryDialog::openLog);
    connect(m_exportButton, &QPushButton::clicked, this, &CUpdateHistoryDialog::chooseExportFile);
}

void CUpdateHistoryDialog::setFilter(const QString &text)
{
    m_sorter->setFilterFixedString(text);
    m_exportButton->setEnabled(m_sorter->rowCount() > 0);
    if (!getView()->currentIndex().isValid())
        getView()->setCurrentIndex(m_sorter->index(0, 0));
    onCurrentChanged();
}

void CUpdateHistoryDialog::onCurrentChanged()
{
    const QModelIndex current = getView()->currentIndex();
    m_logButton->setEnabled(!getLogPath(current).isEmpty());
    QStringList lines;
    if (current.isValid()) {
        const CUpdateRecord &record = getRecord(current);
        for (const QString &line :
             {record.cameraName, record.modelName, record.address, record.error,
              QDir::toNativeSeparators(record.filePath), QDir::toNativeSeparators(record.logPath)})
            if (!line.isEmpty())
                lines.append(Text::shorten(line, MAXIMUM_LINE_LENGTH));
    }
    setDetails(lines.join(QLatin1Char('\n')));
}

void CUpdateHistoryDialog::openLog()
{
    const QString path = getLogPath(getView()->currentIndex());
    if (!path.isEmpty())
        CTextDialog::showFile(path, this);
}

void CUpdateHistoryDialog::chooseExportFile()
{
    const QString csvFilter = QStringLiteral("CSV (*.csv)");
    const QString jsonFilter = QStringLiteral("JSON (*.json)");
    auto *const dialog
        = new QFileDialog(this, tr("Export update history"),
                          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->setObjectName(QStringLiteral("exportDialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({csvFilter, jsonFilter});
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(dialog);
    connect(dialog, &QFileDialog::filterSelected, dialog,
            [dialog, jsonFilter](const QString &filter) {
                dialog->setDefaultSuffix(filter == jsonFilter ? QStringLiteral("json")
                                                              : QStringLiteral("csv"));
            });
    connect(dialog, &QFileDialog::fileSelected, this, &CUpdateHistoryDialog::exportTo);
    dialog->open();
}

void CUpdateHistoryDialog::exportTo(const QString &path)
{
    const bool isJson = path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    const Text::CErrorText fault = Files::replaceFile(path, isJson ? getJson() : getCsv());
    const QString name = QDir::toNativeSeparators(path);
    if (fault.isEmpty())
        setDetails(
            tr("%n update(s) were written to \"%1\".", nullptr, m_sorter->rowCount()).arg(name));
    else
        setDetails(tr("The file \"%1\" cannot be written: %2.").arg(name, fault.getLocalized()));
}

QByteArray CUpdateHistoryDialog::getCsv() const
{
    QVector<QStringList> rows{m_model->getExportedHeader()};
    for (int row = 0; row < m_sorter->rowCount(); ++row)
        rows.append(m_model->getExportedRow(m_sorter->mapToSource(m_sorter->index(row, 0)).row()));
    return Text::toCsv(rows);
}

QByteArray CUpdateHistoryDialog::getJson() const
{
    QByteArrayList records;
    for (int row = 0; row < m_sorter->rowCount(); ++row)
        records.append(toJson(getRecord(m_sorter->index(row, 0))));
    return "[\n" + records.join(",\n") + "\n]\n";
}

QString CUpdateHistoryDialog::getLogPath(const QModelIndex &shown) const
{
    if (!shown.isValid())
        return {};
    const QString path = getRecord(shown).logPath;
    return QFileInfo(path).isFile() ? path : QString();
}

const CUpdateRecord &CUpdateHistoryDialog::getRecord(const QModelIndex &shown) const
{
    return m_model->getRecord(m_sorter->mapToSource(shown).row());
}

} // namespace Viewer::AppCore
