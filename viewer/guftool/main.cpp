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
    output.setCodec("UTF-8");
    QTextStream errorOutput(stderr);
    errorOutput.setCodec("UTF-8");
    return Viewer::GufTool::CGufTool(output, errorOutput).run(QCoreApplication::arguments());
}
