#pragma once

#include "listframe.h"

#include "viewer/update/updatehistory.h"

#include <QLocale>

class QModelIndex;

namespace Viewer::Update {
class CUpdateHistoryModel;
}

namespace Viewer::AppCore {

class CUpdateHistorySorter;

/// Lists the updates that have ended, shows the log of one, and writes those that it shows, in the
/// order in which it does, to a file for spreadsheets or programs.
class CUpdateHistoryDialog : public CListFrame
{
    Q_OBJECT

public:
    /// Texts are sorted, and times written, as in @p locale.
    CUpdateHistoryDialog(const Update::CUpdateHistory::CContent &content, const QLocale &locale,
                         QWidget *parent = nullptr);
    ~CUpdateHistoryDialog() override;

private:
    void createFilter();
    void createButtons();
    void setFilter(const QString &text);
    void onCurrentChanged();
    void openLog();
    void chooseExportFile();
    void exportTo(const QString &path);
    [[nodiscard]] QByteArray getCsv() const;
    [[nodiscard]] QByteArray getJson() const;

    /// Of the row @p shown; empty if there is no such row or its log is gone.
    [[nodiscard]] QString getLogPath(const QModelIndex &shown) const;
    [[nodiscard]] const Update::CUpdateRecord &getRecord(const QModelIndex &shown) const;

    Update::CUpdateHistoryModel *const m_model;
    CUpdateHistorySorter *const m_sorter;
    QPushButton *const m_logButton;
    QPushButton *const m_exportButton;
};

} // namespace Viewer::AppCore
