#pragma once

#include "listdialog.h"
#include "logfolder.h"

namespace Viewer::AppCore {

/// Lists the logs of firmware updates, shows and copies one, and opens their folder.
class CLogListDialog : public CListDialog
{
    Q_OBJECT

public:
    /// Longest part of a log that is read for the list, in bytes; about 35 cameras.
    static constexpr qint64 MAXIMUM_LOG_SIZE = 1024 * 1024;

    /// Reads the logs of @p folder, which is used by nothing after the constructor.
    explicit CLogListDialog(const CLogFolder &folder, QWidget *parent = nullptr);
    ~CLogListDialog() override;

private:
    void addEntry(const CLogFile &log);
    void createButtons();
    void openCurrent();
    void copyCurrent();
    void openFolder() const;
    [[nodiscard]] QString getCurrentPath() const;

    const QString m_root;
};

} // namespace Viewer::AppCore
