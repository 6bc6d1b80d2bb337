#pragma once

#include "certificate.h"

#include <functional>
#include <optional>

struct evp_pkey_st;

namespace Viewer::Signature {

/// Signs manifests with one key.
class CSigner
{
public:
    /// Asked when the key is encrypted; nothing: there is no passphrase.
    using PassphraseSource = std::function<std::optional<QByteArray>()>;

    /// The PEM files of who signs. @p chain, which may be empty, leads from the certificate to one
    /// that others trust. Nothing, with a clause in @p fault: they do not fit or cannot be read.
    [[nodiscard]] static std::optional<CSigner> fromFiles(const QString &certificate,
                                                          const QString &key, const QString &chain,
                                                          const PassphraseSource &askPassphrase,
                                                          Text::CErrorText &fault);

    /// Signs @p manifest. Other signatures of @p former, of which the one with the same key is
    /// replaced, stay. Empty, with a clause in @p fault: nobody who trusts the certificate would
    /// accept the outcome.
    [[nodiscard]] QByteArray sign(const QByteArray &manifest,
                                  const std::optional<QByteArray> &former,
                                  Text::CErrorText &fault) const;

private:
    CSigner() = default;

    CCertificate m_certificate;
    QVector<CCertificate> m_chain;
    std::shared_ptr<evp_pkey_st> m_key;
};

} // namespace Viewer::Signature
