#include "updatecommandline.h"

#include "viewer/camera/camerakinds.h"
#include "viewer/commandline/takers.h"
#include "viewer/text/language.h"
#include "viewer/text/visibletext.h"

#include <QFileInfo>

#include <iterator>
#include <utility>

namespace Viewer::NuvexUpdate {

using CommandLine::COption;
using CommandLine::COptionReader;
using Text::CLanguage;

namespace {

/// More than one computer can work off.
constexpr int MAXIMUM_PARALLEL = 256;
constexpr int MAXIMUM_COUNT = 1'000'000;

struct CCommandEntry
{
    const char *name;
    ECommand command;
    bool hasFile;
};

constexpr CCommandEntry COMMANDS[] = {{"list", ECommand::List, false},
                                      {"check", ECommand::Check, true},
                                      {"update", ECommand::Update, true},
                                      {"resume", ECommand::Resume, false},
                                      {"history", ECommand::History, false}};

QString getCommandList()
{
    QStringList names;
    for (const CCommandEntry &entry : COMMANDS)
        names.append(QLatin1String(entry.name));
    return names.join(QStringLiteral(", "));
}

/// The options that only some commands have.
bool hasOption(ECommand command, const QString &name)
{
    static const QStringList selection{QStringLiteral("camera"), QStringLiteral("model"),
                                       QStringLiteral("all"), QStringLiteral("allow-downgrade"),
                                       QStringLiteral("allow-reinstall")};
    switch (command) {
    case ECommand::Update:
        return name != QLatin1String("csv");
    case ECommand::Resume:
        return name != QLatin1String("csv") && !selection.contains(name);
    case ECommand::History:
        return name == QLatin1String("csv");
    case ECommand::Check:
        return name == QLatin1String("require-signature");
    case ECommand::List:
        break;
    }
    return false;
}

} // namespace

CUpdateCommandLine::EResult CUpdateCommandLine::parse(const QStringList &arguments)
{
    m_request.kinds = Camera::makeCameraKinds();
    COptionReader reader(QStringLiteral("nuvexupdate"), QCoreApplication::applicationVersion(),
                         tr("Updates the firmware of many cameras, without a display."));
    reader.addPositional(
        QStringLiteral("command"),
        tr("list: the cameras; check: what a file would do to each of them; update: do it; resume: "
           "repeat what was interrupted; history: what was updated."),
        QStringLiteral("list|check|update|resume|history"));
    reader.addPositional(QStringLiteral("file"), tr("The update file, for check and update."),
                         QStringLiteral("[file.guf]"));
    for (const std::unique_ptr<Camera::ICameraKind> &kind : m_request.kinds)
        reader.add(kind->getOptions());
    reader.add(getOptions());
    reader.add(getUpdateOptions());
    EResult result = reader.parse(arguments);
    m_message = reader.getMessage();
    if (result == EResult::Start
        && !(takePositionals(reader.getPositionals()) && checkOptions() && checkSelection()))
        result = EResult::Error;
    return result;
}

QVector<COption> CUpdateCommandLine::getOptions()
{
    const auto takeLanguage = [this](const QString &code) {
        m_request.language = code;
        return CLanguage::isKnown(code);
    };
    COption language{QStringLiteral("language"), tr("code"),
                     tr("Use the language <code>: %1.").arg(CLanguage::getCodeList()), takeLanguage,
                     tr("The language \"%1\" is unknown; there are %2.")};
    language.fault = language.fault.arg(QStringLiteral("%1"), CLanguage::getCodeList());
    // The answer is to be in it.
    language.comesFirst = true;
    return {language,
            {QStringLiteral("json"),
             {},
             tr("Print one JSON object a line."),
             CommandLine::takeSwitch(m_request.isJson)},
            {QStringLiteral("csv"),
             {},
             tr("history: print a table for spreadsheets."),
             [this](const QString &) {
                 m_given.insert(QStringLiteral("csv"));
                 return m_request.isCsv = true;
             }}};
}

QVector<COption> CUpdateCommandLine::getUpdateOptions()
{
    const auto takeCamera = [this](const QString &name) {
        if (!m_request.cameras.contains(name))
            m_request.cameras.append(name);
        return !name.isEmpty();
    };
    const auto takeModel = [this](const QString &name) {
        const bool isFirst = m_request.modelName.isEmpty() || m_request.modelName == name;
        m_request.modelName = name;
        return isFirst && !name.isEmpty();
    };
    const QString number = tr("n");
    QVector<COption> options{
        {QStringLiteral("camera"), tr("id"),
         tr("update: the camera with this id or serial number; can be given several times."),
         takeCamera},
        {QStringLiteral("model"), tr("name"), tr("update: all cameras of this model."), takeModel},
        {QStringLiteral("all"),
         {},
         tr("update: all cameras that the file fits."),
         CommandLine::takeSwitch(m_request.isForAll)},
        {QStringLiteral("allow-downgrade"),
         {},
         tr("update: also where the camera has a newer version."),
         CommandLine::takeSwitch(m_request.allowsDowngrade)},
        {QStringLiteral("allow-reinstall"),
         {},
         tr("update: also where the camera has this version already."),
         CommandLine::takeSwitch(m_request.allowsReinstall)},
        {QStringLiteral("parallel"), number, tr("So many updates at a time (default 8)."),
         CommandLine::takeInteger(m_request.parallelCount, 1, MAXIMUM_PARALLEL),
         tr("--parallel takes a number from 1 to %1, not \"%2\".").arg(MAXIMUM_PARALLEL)},
        {QStringLiteral("canary"), number,
         tr("So many cameras first, the others only when all of these have succeeded."),
         CommandLine::takeInteger(m_request.canaryCount, 1, MAXIMUM_COUNT),
         tr("--canary takes a number of cameras, not \"%1\".")},
        {QStringLiteral("max-failures"), number,
         tr("Begin no further camera after so many failures (default 1)."),
         CommandLine::takeInteger(m_request.maximumFailures, 1, MAXIMUM_COUNT),
         tr("--max-failures takes a number of cameras, not \"%1\".")},
        {QStringLiteral("require-signature"),
         {},
         tr("check, update, resume: only with a file that a trusted maker has signed."),
         CommandLine::takeSwitch(m_request.requiresSignature)},
        {QStringLiteral("dry-run"),
         {},
         tr("Only say what would be done."),
         CommandLine::takeSwitch(m_request.isDryRun)},
        {QStringLiteral("yes"),
         {},
         tr("Do not ask before the updates begin."),
         CommandLine::takeSwitch(m_request.isConfirmed)},
    };
    for (COption &option : options) {
        const auto take = option.take;
        const QString name = option.name;
        option.fault.replace(QLatin1String("%2"), QLatin1String("%1"));
        option.take = [this, take, name](const QString &value) {
            m_given.insert(name);
            return take(value);
        };
    }
    return options;
}

bool CUpdateCommandLine::takePositionals(const QStringList &positionals)
{
    if (positionals.isEmpty())
        return fail(tr("No command is given; there are %1.").arg(getCommandList()));
    m_commandName = positionals.constFirst();
    const auto *const command
        = std::find_if(std::begin(COMMANDS), std::end(COMMANDS), [this](const auto &entry) {
              return m_commandName == QLatin1String(entry.name);
          });
    if (command == std::end(COMMANDS))
        return fail(tr("There is no command \"%1\"; there are %2.")
                        .arg(Text::shorten(m_commandName), getCommandList()));
    m_request.command = command->command;
    const int count = command->hasFile ? 2 : 1;
    if (positionals.size() > count)
        return fail(tr("Unexpected argument \"%1\".").arg(Text::shorten(positionals.at(count))));
    if (positionals.size() < count || (command->hasFile && positionals.at(1).isEmpty()))
        return fail(tr("\"%1\" needs an update file.").arg(m_commandName));
    if (command->hasFile)
        m_request.filePath = QFileInfo(positionals.at(1)).absoluteFilePath();
    return true;
}

bool CUpdateCommandLine::checkOptions()
{
    for (const QString &name : qAsConst(m_given)) {
        if (!hasOption(m_request.command, name))
            return fail(tr("\"%1\" has no option --%2.").arg(m_commandName, name));
    }
    if (m_request.isCsv && m_request.isJson)
        return fail(tr("--csv and --json exclude each other."));
    return true;
}

bool CUpdateCommandLine::checkSelection()
{
    if (m_request.command != ECommand::Update)
        return true;
    const int count = (m_request.cameras.isEmpty() ? 0 : 1)
        + (m_request.modelName.isEmpty() ? 0 : 1) + (m_request.isForAll ? 1 : 0);
    if (count == 0)
        return fail(tr("Say which cameras: --camera, --model or --all."));
    if (count > 1)
        return fail(tr("--camera, --model and --all exclude each other."));
    return true;
}

bool CUpdateCommandLine::fail(const QString &message)
{
    m_message = message;
    return false;
}

QString CUpdateCommandLine::getLanguage() const
{
    return m_request.language;
}

CUpdateRequest CUpdateCommandLine::takeRequest()
{
    return std::move(m_request);
}

QString CUpdateCommandLine::getMessage() const
{
    return m_message;
}

} // namespace Viewer::NuvexUpdate
