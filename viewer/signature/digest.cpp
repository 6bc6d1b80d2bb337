#include "digest.h"

#include <openssl/evp.h>
#include <openssl/objects.h>

namespace Viewer::Signature {

const EVP_MD *findDigest(int nid)
{
    switch (nid) {
    case NID_sha256:
        return EVP_sha256();
    case NID_sha384:
        return EVP_sha384();
    case NID_sha512:
        return EVP_sha512();
    default:
        return nullptr;
    }
}

QByteArray computeDigest(const QByteArray &bytes, const EVP_MD *digest)
{
    unsigned char result[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (EVP_Digest(bytes.constData(), static_cast<size_t>(bytes.size()), result, &size, digest,
                   nullptr)
        != 1)
        return {};
    return {reinterpret_cast<const char *>(result), static_cast<int>(size)};
}

} // namespace Viewer::Signature
