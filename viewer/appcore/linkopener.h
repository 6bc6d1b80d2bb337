#pragma once

#include <QObject>
#include <QProcessEnvironment>
#include <QString>

class QDialog;
class QUrl;

namespace Viewer::AppCore {

/// Opens the links in labels with the desktop's own programs and, where the desktop has none, shows
/// a text file's text, or the address to copy, in a window of the viewer. It stands in for the
/// whole application from construction to destruction.
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

public slots:
    /// Opens @p url, which may also be a bare absolute path. Returns at once.
    void open(const QUrl &url);

private:
    void openFallback(const QUrl &url);
    void showText(const QString &path);
    void showAddress(const QUrl &url);
    void showDialog(QDialog *dialog);

    const QString m_program;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace Viewer::AppCore
