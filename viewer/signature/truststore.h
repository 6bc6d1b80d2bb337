#pragma once

#include "certificate.h"
#include "viewer/text/libraryversion.h"

#include <QStringList>

#include <memory>

struct X509_crl_st;
struct x509_store_st;

namespace Viewer::Signature {

/// The certificates of the makers that are trusted, and the lists of those that were revoked. Each
/// certificate is trusted for itself: it may be a maker's own, or an authority's. Not changed once
/// it is made.
class CTrustStore
{
public:
    struct CMaker
    {
        QString filePath;
        CCertificate certificate;
    };

    /// The library that checks certificates.
    [[nodiscard]] static Text::CLibraryVersion getLibrary();

    /// Trusts nobody.
    CTrustStore() = default;

    /// Trusts @p certificate alone.
    explicit CTrustStore(const CCertificate &certificate);

    /// Reads the PEM files of @p folders. What others could have written is not read, and folders
    /// that are not there hold nothing.
    explicit CTrustStore(const QStringList &folders);

    [[nodiscard]] const QVector<CMaker> &getMakers() const;

    /// One clause for each file or folder that was not read.
    [[nodiscard]] const QVector<Text::CErrorText> &getFaults() const;

    /// Why what @p signer has signed for @p purpose at @p time is not to be believed @p now, as a
    /// clause; empty: a chain over @p others leads to a trusted maker, and all of it was valid at
    /// that time, is strong and not revoked.
    [[nodiscard]] Text::CErrorText findFault(const CCertificate &signer,
                                             const QVector<CCertificate> &others,
                                             CCertificate::EPurpose purpose, const QDateTime &time,
                                             const QDateTime &now) const;

    /// All trusted certificates, for checks as of @p time that need a strong chain to any of them.
    /// Null: there is no memory.
    [[nodiscard]] std::shared_ptr<x509_store_st> makeOpenSslStore(const QDateTime &time) const;

private:
    void readFolder(const QString &folder);
    void readFile(const QString &path);
    [[nodiscard]] Text::CErrorText findRevocation(const QVector<CCertificate> &chain,
                                                  const QDateTime &now) const;

    QVector<CMaker> m_makers;
    QVector<std::shared_ptr<X509_crl_st>> m_revocations;
    QVector<Text::CErrorText> m_faults;
};

} // namespace Viewer::Signature
