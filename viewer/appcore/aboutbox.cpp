#include "aboutbox.h"

#include <QCoreApplication>

namespace Viewer::AppCore {

static QString describe(const Text::CLibraryVersion &library)
{
    QString version = library.running;
    if (library.built != library.running)
        version = CAboutBox::tr("%1, built with %2").arg(library.running, library.built);
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(library.name.toHtmlEscaped(), version.toHtmlEscaped());
}

CAboutBox::CAboutBox(const QVector<Text::CLibraryVersion> &libraries, QWidget *parent)
    : QMessageBox(QMessageBox::NoIcon, tr("About"), {}, QMessageBox::Close, parent)
{
    setObjectName(QStringLiteral("aboutBox"));
    QString rows;
    for (const Text::CLibraryVersion &library : libraries)
        rows += describe(library);
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setText(tr("<h3>Nuvex Viewer %1</h3><p>Shows cameras and lets plug-ins work with them.</p>")
                .arg(QCoreApplication::applicationVersion())
            + tr("<p>License: MIT</p><p>Libraries:</p>")
            + QStringLiteral("<table>%1</table>").arg(rows));
}

CAboutBox::~CAboutBox() = default;

} // namespace Viewer::AppCore
