#include "commandline.h"

#include "viewer/commandline/takers.h"
#include "viewer/text/language.h"

#include <QFileInfo>

#include <utility>

namespace Viewer::AppCore {

using CommandLine::COption;
using CommandLine::COptionReader;
using Text::CLanguage;

CCommandLine::EResult CCommandLine::parse(const QStringList &arguments)
{
    m_options.kinds = Camera::makeCameraKinds();
    COptionReader reader(QStringLiteral("nuvexviewer"), QCoreApplication::applicationVersion(),
                         tr("Shows cameras and lets plug-ins work with them."));
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_options.kinds)
        reader.add(kind->getOptions());
    reader.add(getOptions());
    const QString name = tr("file");
    reader.addPositional(name, tr("Show what the update file <file> holds."),
                         QStringLiteral("[%1]").arg(name));
    EResult result = reader.parse(arguments);
    m_message = reader.getMessage();
    if (result == EResult::Start && !takeUpdateFile(reader.getPositionals()))
        result = EResult::Error;
    if (!m_options.demoDirectory.isEmpty()) {
        for (const std::unique_ptr<Camera::ICameraKind> &kind : m_options.kinds)
            kind->prepareDemonstration();
    }
    return result;
}

bool CCommandLine::takeUpdateFile(const QStringList &arguments)
{
    if (arguments.isEmpty())
        return true;
    if (arguments.size() > 1)
        m_message = tr("There is more than one update file: \"%1\" and \"%2\".")
                        .arg(arguments.at(0), arguments.at(1));
    else if (arguments.constFirst().isEmpty())
        m_message = tr("The name of the update file is empty.");
    else if (!m_options.demoDirectory.isEmpty())
        m_message = tr("The demonstration shows no update file.");
    else
        m_options.updateFile = QFileInfo(arguments.constFirst()).absoluteFilePath();
    return !m_options.updateFile.isEmpty();
}

QVector<COption> CCommandLine::getOptions()
{
    const auto takeLanguage = [this](const QString &code) {
        m_options.language = code;
        return CLanguage::isKnown(code);
    };
    const auto takePlugins = [this](const QString &folder) {
        m_options.pluginDirectories.append(QFileInfo(folder).absoluteFilePath());
        // An empty folder would stand for the current one, in which anything may lie.
        return !folder.isEmpty();
    };
    COption language{QStringLiteral("language"), tr("code"),
                     tr("Use the language <code> this time: %1.").arg(CLanguage::getCodeList()),
                     takeLanguage, tr("The language \"%1\" is unknown; there are %2.")};
    language.fault = language.fault.arg(QStringLiteral("%1"), CLanguage::getCodeList());
    // The answer is to be in it.
    language.comesFirst = true;
    return {
        {QStringLiteral("plugins"), tr("dir"),
         tr("Look for plug-ins in <dir>, too; can be given several times."), takePlugins,
         tr("No folder is given for the plug-ins.")},
        language,
        {QStringLiteral("samples"), tr("dir"),
         tr("Use <dir> as the folder of sample update files."),
         CommandLine::takePath(m_options.samplesDirectory)},
        {QStringLiteral("require-signature"),
         {},
         tr("Use only update files that a trusted maker has signed, this time."),
         CommandLine::takeSwitch(m_options.requiresSignature)},
        {QStringLiteral("demo"), tr("dir"),
         tr("Walk through the firmware update wizard, faster than real cameras would, save "
            "pictures "
            "into <dir> and quit."),
         CommandLine::takePath(m_options.demoDirectory),
         tr("No folder is given for the demonstration's pictures.")},
    };
}

QString CCommandLine::getLanguage() const
{
    return m_options.language;
}

CCommandLineOptions CCommandLine::takeOptions()
{
    return std::move(m_options);
}

QString CCommandLine::getMessage() const
{
    return m_message;
}

} // namespace Viewer::AppCore
