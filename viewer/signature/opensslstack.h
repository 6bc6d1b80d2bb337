#pragma once

#include "certificate.h"

#include <openssl/x509.h>

namespace Viewer::Signature {

/// Of a list that OpenSSL has; null: none.
inline QVector<CCertificate> toCertificates(const STACK_OF(X509) * stack)
{
    QVector<CCertificate> certificates;
    for (int i = 0; i < sk_X509_num(stack); ++i)
        certificates.append(CCertificate::fromOpenSsl(sk_X509_value(stack, i)));
    return certificates;
}

} // namespace Viewer::Signature
