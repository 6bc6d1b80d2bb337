#include "guftool.h"

#include "manifestprinter.h"
#include "updatefilepacker.h"
#include "updatefilesigner.h"
#include "viewer/commandline/optionreader.h"
#include "viewer/commandline/takers.h"
#include "viewer/files/replacefile.h"
#include "viewer/files/statefolder.h"
#include "viewer/signature/signaturelimits.h"
#include "viewer/signature/signaturepolicy.h"
#include "viewer/signature/signer.h"
#include "viewer/signature/timestamp.h"
#include "viewer/signature/truststore.h"
#include "viewer/updatefile/updatefileerror.h"
#include "viewer/updatefile/updatefilereader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <cstring>
#include <unistd.h>

namespace Viewer::GufTool {

using Signature::CSignaturePolicy;
using Signature::CSigner;
using Text::CErrorText;
using UpdateFile::CUpdateFileError;
using UpdateFile::CUpdateFileReader;
using UpdateFile::CUpdateManifest;

static constexpr int MAXIMUM_PASSPHRASE = 1024;

CGufTool::CGufTool(QTextStream &output, QTextStream &errorOutput)
    : m_output(output)
    , m_errorOutput(errorOutput)
{
}

/// What @p path holds in its first line, or what is typed at the terminal; nothing: there is
/// neither.
static std::optional<QByteArray> readPassphrase(const QString &path, const QString &question)
{
    if (!path.isEmpty()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        QByteArray line = file.readLine(MAXIMUM_PASSPHRASE);
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        return line;
    }
    // Otherwise it would be taken from whatever is piped into the program.
    if (!QFile(QStringLiteral("/dev/tty")).open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return std::nullopt;
    char *const typed = getpass(question.toLocal8Bit().constData());
    if (!typed)
        return std::nullopt;
    const QByteArray passphrase(typed);
    explicit_bzero(typed, std::strlen(typed));
    return passphrase;
}

int CGufTool::run(const QStringList &arguments)
{
    using CommandLine::COptionReader;
    COptions options;
    // What --help answers is written by hand: there is more to tell about commands than options.
    COptionReader reader(QStringLiteral("guftool"), {}, {});
    const auto add = [&](const char *name, const CommandLine::CTaker &take, bool isSwitch = false) {
        const QString text = QLatin1String(name);
        const auto takeGiven = [&options, take, text](const QString &value) {
            options.given.append(text);
            return take(value);
        };
        reader.add({{text, isSwitch ? QString() : QStringLiteral("value"), {}, takeGiven}});
    };
    add("json", CommandLine::takeSwitch(options.isJson), true);
    add("sign", CommandLine::takeSwitch(options.isSigned), true);
    add("certificate", CommandLine::takePath(options.certificate));
    add("key", CommandLine::takePath(options.key));
    add("chain", CommandLine::takePath(options.chain));
    add("passphrase-file", CommandLine::takePath(options.passphraseFile));
    add("query", CommandLine::takePath(options.query));
    add("response", CommandLine::takePath(options.response));
    add("trust", CommandLine::takePath(options.trustFolder));
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
        return runCommand(reader.getPositionals(), options);
    } catch (const CUpdateFileError &error) {
        m_errorOutput << error.getText().getLocalized() << Qt::endl;
        return FileFaulty;
    }
}

int CGufTool::runCommand(const QStringList &arguments, const COptions &options)
{
    if (arguments.isEmpty())
        return reportWrongUsage(tr("There is no command."));
    const QString &command = arguments.constFirst();
    const bool isPack = command == QLatin1String("pack");
    const bool isSign = command == QLatin1String("sign");
    const bool isStamp = command == QLatin1String("stamp");
    const bool isInspect = command == QLatin1String("inspect");
    if (!isPack && !isSign && !isStamp && !isInspect && command != QLatin1String("verify"))
        return reportWrongUsage(tr("The command \"%1\" is unknown.").arg(command));
    if (arguments.size() != (isPack ? 3 : 2))
        return reportWrongUsage(
            tr("The command \"%1\" has too few or too many arguments.").arg(command));
    QStringList known;
    if (isPack)
        known.append(QStringLiteral("sign"));
    if (isSign || (isPack && options.isSigned))
        known += QStringList{QStringLiteral("certificate"), QStringLiteral("key"),
                             QStringLiteral("chain"), QStringLiteral("passphrase-file")};
    if (isStamp)
        known += QStringList{QStringLiteral("query"), QStringLiteral("response")};
    if (isInspect)
        known.append(QStringLiteral("json"));
    if (!isPack && !isSign && !isStamp)
        known.append(QStringLiteral("trust"));
    for (const QString &name : options.given) {
        if (!known.contains(name))
            return reportWrongUsage(
                tr("The command \"%1\" has no option --%2.").arg(command, name));
    }
    if ((isSign || options.isSigned) && (options.certificate.isEmpty() || options.key.isEmpty()))
        return reportWrongUsage(tr("A signature needs --certificate and --key."));
    if (isStamp && options.query.isEmpty() == options.response.isEmpty())
        return reportWrongUsage(tr("A time stamp needs --query or --response."));
    if (!options.trustFolder.isEmpty() && !QFileInfo(options.trustFolder).isDir())
        return reportWrongUsage(
            tr("\"%1\" is not a folder.").arg(QDir::toNativeSeparators(options.trustFolder)));

    if (isPack)
        return pack(arguments.at(1), arguments.at(2), options);
    if (isSign)
        return sign(arguments.at(1), options);
    if (isStamp)
        return stamp(arguments.at(1), options);
    return isInspect ? inspect(arguments.at(1), options) : verify(arguments.at(1), options);
}

static SignatureMaker makeSignature(const CSigner &signer)
{
    return [&signer](const CUpdateManifest &manifest, CErrorText &fault) {
        const QByteArray signature = signer.sign(manifest.json, manifest.signature, fault);
        if (!fault.isEmpty())
            fault = CErrorText::tr("it cannot be signed: %1").arg(fault);
        return fault.isEmpty() ? signature : QByteArray();
    };
}

std::optional<CSigner> CGufTool::readSigner(const COptions &options)
{
    const auto ask = [&options] {
        return readPassphrase(options.passphraseFile,
                              tr("Passphrase of the key:") + QLatin1Char(' '));
    };
    CErrorText fault;
    const std::optional<CSigner> signer
        = CSigner::fromFiles(options.certificate, options.key, options.chain, ask, fault);
    if (!signer)
        m_errorOutput << tr("It cannot be signed: %1").arg(fault.getLocalized()) << Qt::endl;
    return signer;
}

int CGufTool::pack(const QString &folder, const QString &file, const COptions &options)
{
    const std::optional<CSigner> signer = options.isSigned ? readSigner(options) : std::nullopt;
    if (options.isSigned && !signer)
        return FileFaulty;
    const CUpdateManifest manifest
        = CUpdateFilePacker(folder).pack(file, signer ? makeSignature(*signer) : nullptr);
    m_output << tr("Packed %1: updates: %2, bytes: %3")
                    .arg(QDir::toNativeSeparators(file), QString::number(manifest.updates.size()),
                         QString::number(QFileInfo(file).size()))
             << Qt::endl;
    return Success;
}

int CGufTool::sign(const QString &file, const COptions &options)
{
    const std::optional<CSigner> signer = readSigner(options);
    if (!signer)
        return FileFaulty;
    replaceSignature(file, makeSignature(*signer));
    m_output << tr("Signed %1").arg(QDir::toNativeSeparators(file)) << Qt::endl;
    return Success;
}

int CGufTool::stamp(const QString &file, const COptions &options)
{
    const QString path = QDir::toNativeSeparators(file);
    const std::optional<QByteArray> signature = CUpdateFileReader::read(file).signature;
    if (!signature)
        throw CUpdateFileError(file, CErrorText::tr("it is not signed"));
    if (!options.response.isEmpty()) {
        QFile response(options.response);
        if (!response.open(QIODevice::ReadOnly))
            throw CUpdateFileError(options.response, CErrorText(response.errorString()));
        const QByteArray answer = response.read(Signature::Limits::SIGNATURE_SIZE);
        replaceSignature(file, [&](const CUpdateManifest &, CErrorText &fault) {
            return Signature::addTimeStamp(*signature, answer, fault);
        });
        m_output << tr("Stamped %1").arg(path) << Qt::endl;
        return Success;
    }
    CErrorText fault;
    const QByteArray query = Signature::makeTimeStampQuery(*signature, fault);
    if (fault.isEmpty())
        fault = Files::replaceFile(options.query, query).toClause();
    if (!fault.isEmpty())
        throw CUpdateFileError(file, fault);
    m_output << tr("Wrote %1, for an authority for time stamps")
                    .arg(QDir::toNativeSeparators(options.query))
             << Qt::endl;
    return Success;
}

void CGufTool::tellFaultsOf(const QStringList &trustFolders)
{
    const Signature::CTrustStore store(trustFolders);
    for (const CErrorText &fault : store.getFaults())
        m_errorOutput << fault.getLocalized() << Qt::endl;
}

int CGufTool::inspect(const QString &file, const COptions &options)
{
    const CUpdateManifest manifest = CUpdateFileReader::read(file);
    const CSignaturePolicy policy = options.trustFolder.isEmpty()
        ? CSignaturePolicy::read(CSignaturePolicy::getSystemFolder(), Files::getConfigFolder())
        : CSignaturePolicy(false, {options.trustFolder});
    if (manifest.signature)
        tellFaultsOf(policy.getTrustFolders());
    const CManifestPrinter printer(file, manifest, policy.judge(manifest.json, manifest.signature));
    m_output << (options.isJson ? printer.toJson() : printer.toText());
    m_output.flush();
    return Success;
}

int CGufTool::verify(const QString &file, const COptions &options)
{
    const CUpdateManifest manifest = CUpdateFileReader::read(file);
    const QString path = QDir::toNativeSeparators(file);
    const QString faultless
        = tr("%1 is faultless, updates: %2").arg(path, QString::number(manifest.updates.size()));
    if (options.trustFolder.isEmpty()) {
        m_output << faultless << Qt::endl;
        return Success;
    }
    tellFaultsOf({options.trustFolder});
    const auto verdict
        = CSignaturePolicy(true, {options.trustFolder}).judge(manifest.json, manifest.signature);
    if (verdict.state != Signature::CSignatureVerdict::EState::Trusted) {
        m_errorOutput << CUpdateFileError(file, verdict.describe()).getText().getLocalized()
                      << Qt::endl;
        return NotTrusted;
    }
    m_output << faultless << Qt::endl
             << tr("Signed by %1, SHA-256 fingerprint %2")
                    .arg(verdict.signer.getSubject(), verdict.signer.getFingerprint())
             << Qt::endl;
    return Success;
}

QString CGufTool::getUsage()
{
    //: At most 80 columns wide; Korean, Japanese and Chinese letters take two.
    return tr("Usage: guftool pack DIR FILE [--sign SIGNING]\n"
              "       guftool sign FILE SIGNING\n"
              "       guftool stamp FILE --query QUERY | --response RESPONSE\n"
              "       guftool inspect [--json] [--trust DIR] FILE\n"
              "       guftool verify [--trust DIR] FILE\n"
              "\n"
              "SIGNING  --certificate FILE --key FILE [--chain FILE]\n"
              "         [--passphrase-file FILE], all of them in PEM but the last,\n"
              "         whose first line is the passphrase of the key\n"
              "\n"
              "pack     makes the update file FILE from DIR/update.json and the payloads\n"
              "         in DIR that it names; sizes and digests that it leaves out are\n"
              "         filled in\n"
              "sign     adds a signature to FILE\n"
              "stamp    writes QUERY, which asks an authority when the signature was\n"
              "         made, or adds RESPONSE, which is its answer (RFC 3161)\n"
              "inspect  checks FILE and shows what it holds, with --json as JSON, and\n"
              "         whether this computer, or DIR, trusts the one who signed it\n"
              "verify   checks FILE, with --trust also that one of the makers whose\n"
              "         certificates are in DIR has signed it\n"
              "\n"
              "Exit code: 0 when all is well, 1 when a file is faulty, 2 for a wrong\n"
              "call of this program, 3 when the signature is missing or not trusted.\n");
}

int CGufTool::reportWrongUsage(const QString &cause)
{
    m_errorOutput << cause << "\n\n" << getUsage();
    m_errorOutput.flush();
    return WrongUsage;
}

} // namespace Viewer::GufTool
