#include "guftool.h"

#include "manifestprinter.h"
#include "updatefilepacker.h"
#include "viewer/commandline/optionreader.h"
#include "viewer/commandline/takers.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace Viewer::GufTool {

using UpdateFile::CUpdateFileError;
using UpdateFile::CUpdateFileReader;
using UpdateFile::CUpdateManifest;

CGufTool::CGufTool(QTextStream &output, QTextStream &errorOutput)
    : m_output(output)
    , m_errorOutput(errorOutput)
{
}

int CGufTool::run(const QStringList &arguments)
{
    using CommandLine::COptionReader;
    bool asJson = false;
    // What --help answers is written by hand: there is more to tell about commands than options.
    COptionReader reader(QStringLiteral("guftool"), {}, {});
    reader.add({{QStringLiteral("json"), {}, {}, CommandLine::takeSwitch(asJson)}});
    reader.allowPositionals();
    switch (reader.parse(arguments)) {
    case COptionReader::EResult::Error:
        return reportWrongUsage(reader.getMessage());
    case COptionReader::EResult::Message:
        m_output << getUsage();
        return Success;
    case COptionReader::EResult::Start:
        break;
    }
    try {
        return runCommand(reader.getPositionals(), asJson);
    } catch (const CUpdateFileError &error) {
        m_errorOutput << error.getText().getLocalized() << Qt::endl;
        return FileFaulty;
    }
}

int CGufTool::runCommand(const QStringList &arguments, bool asJson)
{
    if (arguments.isEmpty())
        return reportWrongUsage(tr("There is no command."));
    const QString &command = arguments.constFirst();
    const bool isPack = command == QLatin1String("pack");
    const bool isInspect = command == QLatin1String("inspect");
    if (!isPack && !isInspect && command != QLatin1String("verify"))
        return reportWrongUsage(tr("The command \"%1\" is unknown.").arg(command));
    if (arguments.size() != (isPack ? 3 : 2))
        return reportWrongUsage(
            tr("The command \"%1\" has too few or too many arguments.").arg(command));
    if (asJson && !isInspect)
        return reportWrongUsage(tr("The command \"%1\" has no option --json.").arg(command));

    if (isPack)
        pack(arguments.at(1), arguments.at(2));
    else if (isInspect)
        inspect(arguments.at(1), asJson);
    else
        verify(arguments.at(1));
    return Success;
}

void CGufTool::pack(const QString &folder, const QString &file)
{
    const CUpdateManifest manifest = CUpdateFilePacker(folder).pack(file);
    m_output << tr("Packed %1: updates: %2, bytes: %3")
                    .arg(QDir::toNativeSeparators(file), QString::number(manifest.updates.size()),
                         QString::number(QFileInfo(file).size()))
             << Qt::endl;
}

void CGufTool::inspect(const QString &file, bool asJson)
{
    const CUpdateManifest manifest = CUpdateFileReader::read(file);
    const CManifestPrinter printer(file, manifest);
    m_output << (asJson ? printer.toJson() : printer.toText());
    m_output.flush();
}

void CGufTool::verify(const QString &file)
{
    const CUpdateManifest manifest = CUpdateFileReader::read(file);
    m_output << tr("%1 is faultless, updates: %2")
                    .arg(QDir::toNativeSeparators(file), QString::number(manifest.updates.size()))
             << Qt::endl;
}

QString CGufTool::getUsage()
{
    //: At most 80 columns wide; Korean, Japanese and Chinese letters take two.
    return tr("Usage: guftool pack DIR FILE\n"
              "       guftool inspect [--json] FILE\n"
              "       guftool verify FILE\n"
              "\n"
              "pack     makes the update file FILE from DIR/update.json and the payloads\n"
              "         in DIR that it names; sizes and digests that it leaves out are\n"
              "         filled in\n"
              "inspect  checks FILE and shows what it holds, with --json as JSON\n"
              "verify   checks FILE\n"
              "\n"
              "Exit code: 0 when all is well, 1 when a file is faulty, 2 for a wrong\n"
              "call of this program.\n");
}

int CGufTool::reportWrongUsage(const QString &cause)
{
    m_errorOutput << cause << "\n\n" << getUsage();
    m_errorOutput.flush();
    return WrongUsage;
}

} // namespace Viewer::GufTool
