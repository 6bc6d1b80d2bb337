#pragma once

#include "signatureverdict.h"

#include <QStringList>

#include <optional>

namespace Viewer::Signature {

/// Whether update files have to be signed on this computer, and by whom.
class CSignaturePolicy
{
public:
    /// What the owner of the computer has set is in this folder.
    [[nodiscard]] static QString getSystemFolder();

    /// Files need not be signed, and nobody is trusted.
    CSignaturePolicy() = default;

    CSignaturePolicy(bool isRequired, const QStringList &trustFolders);

    /// Reads `policy.conf` of @p systemFolder or, where there is none, of @p userFolder; trusted
    /// are the certificates in `trust.d` of both. A file that cannot be read, understood or
    /// believed counts as one that requires signatures. Folders that are empty texts are none.
    [[nodiscard]] static CSignaturePolicy read(const QString &systemFolder,
                                               const QString &userFolder);

    /// From now on, whatever was set.
    void requireSignatures();

    [[nodiscard]] bool isRequired() const;

    /// Absolute paths, whether there are such folders or not.
    [[nodiscard]] const QStringList &getTrustFolders() const;

    /// Why signatures are required although nobody has set it, as a sentence; empty: they are not.
    [[nodiscard]] const Text::CErrorText &getFault() const;

    /// Looks at the certificates and the time of now. Any thread.
    [[nodiscard]] CSignatureVerdict judge(const QByteArray &manifest,
                                          const std::optional<QByteArray> &signature) const;

    /// Why a file with this @p verdict must not be used, as a clause; empty: it may.
    [[nodiscard]] Text::CErrorText findRefusal(const CSignatureVerdict &verdict) const;

private:
    bool m_isRequired = false;
    QStringList m_trustFolders;
    Text::CErrorText m_fault;
};

} // namespace Viewer::Signature
