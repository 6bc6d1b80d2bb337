#include "guftool.h"

#include "viewer/text/language.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("guftool"));
    using Viewer::Text::CLanguage;
    const CLanguage language(CLanguage::getSystem());

    QTextStream output(stdout);
    QTextStream errorOutput(stderr);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // What Qt 6 writes anyway.
    output.setCodec("UTF-8");
    errorOutput.setCodec("UTF-8");
#endif
    return Viewer::GufTool::CGufTool(output, errorOutput).run(QCoreApplication::arguments());
}
