#pragma once

#include "listdialog.h"

#include "viewer/signature/certificate.h"

#include <QStringList>

#include <functional>

class QPushButton;

namespace Viewer::AppCore {

/// Lists the makers whose update files are trusted, and lets the user add and remove those of his
/// own. What it changes counts from the next look at an update file on.
class CTrustedMakersDialog : public CListDialog
{
    Q_OBJECT

public:
    /// Shows the certificates in @p trustFolders, of which @p ownFolder is the user's; empty: there
    /// is none, and nothing can be added.
    CTrustedMakersDialog(const QStringList &trustFolders, const QString &ownFolder,
                         QWidget *parent = nullptr);
    ~CTrustedMakersDialog() override;

private:
    void refresh();
    void addEntry(const QString &filePath, const Signature::CCertificate &certificate);
    void onCurrentChanged();
    void chooseFile();
    void askToAdd(const QString &filePath);
    void add(const Signature::CCertificate &certificate);
    void askToRemove();
    void remove(const QString &filePath);
    /// Calls @p act when the user says yes. @p details is shown as plain text.
    void ask(const QString &question, const QString &details, const std::function<void()> &act);
    [[nodiscard]] QString getCurrentPath() const;

    const QStringList m_trustFolders;
    const QString m_ownFolder;
    QPushButton *const m_addButton;
    QPushButton *const m_removeButton;
};

} // namespace Viewer::AppCore
