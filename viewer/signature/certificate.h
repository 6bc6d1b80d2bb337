#pragma once

#include "viewer/text/errortext.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

#include <memory>

struct x509_st;

namespace Viewer::Signature {

/// An X.509 certificate; cheap to copy, never changed. Texts are as the certificate has them, on
/// one line and cut off where they are long.
class CCertificate
{
public:
    /// None.
    CCertificate() = default;

    /// None where @p der is not exactly one certificate.
    [[nodiscard]] static CCertificate fromDer(const QByteArray &der);

    /// All certificates in @p pem, in their order.
    [[nodiscard]] static QVector<CCertificate> fromPem(const QByteArray &pem);

    /// Borrowed from OpenSSL, of which it becomes a co-owner.
    [[nodiscard]] static CCertificate fromOpenSsl(x509_st *certificate);

    [[nodiscard]] bool isNull() const;

    [[nodiscard]] QString getSubject() const; ///< as in "CN=Update Signing,O=Korvane"
    [[nodiscard]] QString getIssuer() const;
    [[nodiscard]] QDateTime getValidFrom() const; ///< UTC
    [[nodiscard]] QDateTime getValidTo() const;
    [[nodiscard]] QString getFingerprint() const; ///< SHA-256, as in "0F:A2:..."

    [[nodiscard]] QByteArray toDer() const;
    [[nodiscard]] QByteArray toPem() const;

    /// Why nothing signed with its key can be believed, as a clause; empty: its key is strong
    /// enough, and of a known kind.
    [[nodiscard]] Text::CErrorText findKeyFault() const;

    enum class EPurpose { SigningCode, StampingTime };

    enum class ERole {
        Signer, ///< has to be made for the purpose
        Authority, ///< may leave open for what it issues certificates
    };

    /// Why it cannot have this part in a signature for @p purpose, as a clause; empty: it can.
    [[nodiscard]] Text::CErrorText findPurposeFault(EPurpose purpose, ERole role) const;

    /// Null: none. OpenSSL counts references in what is otherwise constant.
    [[nodiscard]] x509_st *get() const;

private:
    std::shared_ptr<x509_st> m_certificate;
};

} // namespace Viewer::Signature
