#pragma once

#include <QObject>
#include <QProcessEnvironment>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QUrl>

class QDialog;
class QLabel;

namespace Viewer::AppCore {

/// Opens the links in labels with the desktop's own programs and, where the desktop has none, shows
/// a text file's text, or the address to copy, in a window of the viewer. Opened are web pages,
/// mail addresses, the manual, logs of updates and the viewer's own folders; of every other link
/// the address is shown, since what a desktop does with a file or a foreign scheme nobody knows. It
/// stands in for the whole application from construction to destruction.
class CLinkOpener : public QObject
{
    Q_OBJECT

public:
    /// @p program is the desktop's program that opens an address or a file.
    explicit CLinkOpener(const QString &program = QStringLiteral("xdg-open"),
                         QObject *parent = nullptr);
    ~CLinkOpener() override;

    /// The environment of the desktop's programs; without a call the viewer's own.
    void setEnvironment(const QProcessEnvironment &environment);

    /// Files "*.log" anywhere below @p folder are opened; without a call none.
    void setLogFolder(const QString &folder);

    /// Opens the page @p file, too, as a web page.
    void setManual(const QString &file);

    /// Opens @p folder itself, too.
    void addFolder(const QString &folder);

    /// Learns of every link before it can be followed.
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Opens @p url, which may also be a bare absolute path. Returns at once.
    void open(const QUrl &url);

private:
    void handle(const QString &scheme);
    void handleLinks(const QLabel &label);
    [[nodiscard]] QString findOwn(const QUrl &url) const;
    void run(const QString &target, bool isAddress);
    void openFallback(const QString &target, bool isAddress);
    void showAddress(const QString &address, const QString &hint);
    void showDialog(QDialog *dialog);

    const QString m_program;
    QSet<QString> m_schemes; ///< that Qt hands over
    QString m_logFolder;
    QUrl m_manual; ///< empty: none
    QStringList m_folders;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace Viewer::AppCore
