#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <memory>

struct evp_pkey_st;
struct x509_st;

namespace TestSupport {

/// A maker of update files with a key and a certificate that exist for as long as the test. What
/// fails here ends the test program with a message.
class CTestMaker
{
public:
    struct COptions
    {
        QByteArray key = "P-256"; ///< or "P-384", "Ed25519", "RSA" with a number of bits
        const CTestMaker *issuer = nullptr; ///< null: itself
        const CTestMaker *sameAs = nullptr; ///< name and key are those of this one
        QByteArray purpose = "codeSigning"; ///< empty: an authority
        int validFrom = -1; ///< in days from now
        int validTo = 100;
    };

    CTestMaker(const QByteArray &name, const COptions &options);
    explicit CTestMaker(const QByteArray &name);
    ~CTestMaker();

    [[nodiscard]] QByteArray getCertificate() const; ///< PEM
    [[nodiscard]] QByteArray getKey(const QByteArray &passphrase = {}) const; ///< PEM

    /// A list in PEM of what this maker has revoked, valid until so many days from now.
    [[nodiscard]] QByteArray revoke(const CTestMaker &other, int validTo = 10) const;

    enum class EForm { Detached, Attached, WithoutCertificate, WithoutAttributes };

    /// What OpenSSL's own functions sign, in which @p others are, too.
    [[nodiscard]] QByteArray sign(const QByteArray &manifest, const char *digest = "SHA256",
                                  const QVector<const CTestMaker *> &others = {},
                                  EForm form = EForm::Detached) const;

    /// @p signature, a message with one signer, with the time stamp of this maker, who does it so
    /// many days from now and has to have the purpose "critical,timeStamping".
    [[nodiscard]] QByteArray stamp(const QByteArray &signature, int day) const;

    /// Writes certificate and key beside each other: "<path>.pem" and "<path>.key".
    void write(const QString &path) const;

private:
    std::shared_ptr<evp_pkey_st> m_key;
    std::shared_ptr<x509_st> m_certificate;
};

} // namespace TestSupport
