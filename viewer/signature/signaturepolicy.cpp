#include "signaturepolicy.h"

#include "signatureverifier.h"
#include "truststore.h"
#include "viewer/files/pathtrust.h"
#include "viewer/text/visibletext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace Viewer::Signature {

using Text::CErrorText;

static constexpr qint64 MAXIMUM_SIZE = 64 * 1024;

/// False: there is certainly none.
static bool mayExist(const QString &path)
{
    struct stat info = {};
    return stat(QFile::encodeName(path).constData(), &info) == 0
        || (errno != ENOENT && errno != ENOTDIR);
}

/// Nothing, with a clause in @p fault: the file cannot be believed.
static std::optional<bool> readRequirement(const QString &path, CErrorText &fault)
{
    fault = Files::findPathFault(path);
    // A pipe could block for ever.
    if (fault.isEmpty() && !QFileInfo(path).isFile())
        fault = CErrorText::tr("it is not a regular file");
    if (!fault.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fault = CErrorText(file.errorString());
        return std::nullopt;
    }
    bool isRequired = false;
    const QList<QByteArray> lines = file.read(MAXIMUM_SIZE).split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const int equals = line.indexOf('=');
        const QByteArray value = line.mid(equals + 1).trimmed();
        if (equals < 0 || line.left(equals).trimmed() != "signatures"
            || (value != "tell" && value != "require")) {
            fault = CErrorText::tr("line %1 is neither \"signatures = tell\" nor \"signatures = "
                                   "require\"")
                        .arg(QString::number(i + 1));
            return std::nullopt;
        }
        isRequired = value == "require";
    }
    return isRequired;
}

QString CSignaturePolicy::getSystemFolder()
{
    return QStringLiteral("/etc/nuvexviewer");
}

CSignaturePolicy::CSignaturePolicy(bool isRequired, const QStringList &trustFolders)
    : m_isRequired(isRequired)
    , m_trustFolders(trustFolders)
{
}

CSignaturePolicy CSignaturePolicy::read(const QString &systemFolder, const QString &userFolder)
{
    CSignaturePolicy policy;
    bool isSet = false;
    for (const QString &folder : {systemFolder, userFolder}) {
        if (folder.isEmpty())
            continue;
        policy.m_trustFolders.append(folder + QLatin1String("/trust.d"));
        const QString path = folder + QLatin1String("/policy.conf");
        if (isSet || !mayExist(path))
            continue;
        isSet = true;
        CErrorText fault;
        policy.m_isRequired = readRequirement(path, fault).value_or(true);
        if (!fault.isEmpty())
            policy.m_fault
                = CErrorText::tr("Only signed update files can be used, since the file "
                                 "\"%1\" cannot be believed: %2.")
                      .arg(Text::shorten(QDir::toNativeSeparators(path), 200), fault.toClause());
    }
    return policy;
}

void CSignaturePolicy::requireSignatures()
{
    m_isRequired = true;
}

bool CSignaturePolicy::isRequired() const
{
    return m_isRequired;
}

const QStringList &CSignaturePolicy::getTrustFolders() const
{
    return m_trustFolders;
}

const CErrorText &CSignaturePolicy::getFault() const
{
    return m_fault;
}

CSignatureVerdict CSignaturePolicy::judge(const QByteArray &manifest,
                                          const std::optional<QByteArray> &signature) const
{
    if (!signature)
        return {};
    return verifySignature(manifest, signature, CTrustStore(m_trustFolders),
                           QDateTime::currentDateTimeUtc());
}

CErrorText CSignaturePolicy::findRefusal(const CSignatureVerdict &verdict) const
{
    if (!m_isRequired || verdict.state == CSignatureVerdict::EState::Trusted)
        return {};
    return CErrorText::tr("%1; only update files of trusted makers can be used here")
        .arg(verdict.describe());
}

} // namespace Viewer::Signature
