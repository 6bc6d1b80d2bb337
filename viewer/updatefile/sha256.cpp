#include "sha256.h"

#include <openssl/evp.h>

namespace Viewer::UpdateFile {

void CSha256::CContextDeleter::operator()(evp_md_ctx_st *context) const
{
    EVP_MD_CTX_free(context);
}

CSha256::CSha256()
    : m_context(EVP_MD_CTX_new())
{
    if (m_context && EVP_DigestInit_ex(m_context.get(), EVP_sha256(), nullptr) != 1)
        m_context.reset();
}

CSha256::~CSha256() = default;

void CSha256::addData(const char *data, qint64 size)
{
    if (m_context && EVP_DigestUpdate(m_context.get(), data, static_cast<size_t>(size)) != 1)
        m_context.reset();
}

QByteArray CSha256::takeResult()
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    const bool isDone = m_context && EVP_DigestFinal_ex(m_context.get(), digest, &size) == 1;
    m_context.reset();
    return isDone ? QByteArray(reinterpret_cast<const char *>(digest), static_cast<int>(size))
                  : QByteArray();
}

} // namespace Viewer::UpdateFile
