#pragma once

#include <QByteArray>

#include <memory>

struct evp_md_ctx_st;

namespace Viewer::UpdateFile {

/// Computes one SHA-256, piece by piece as the data comes. By OpenSSL, since that uses the
/// processor's own instructions for it: Qt's takes several times as long, and the user waits for it
/// whenever a file is chosen. No thread affinity.
class CSha256
{
public:
    CSha256();
    ~CSha256();
    Q_DISABLE_COPY(CSha256)

    /// Any number of bytes, none included.
    void addData(const char *data, qint64 size);

    /// The 32 raw bytes; nothing can be added afterwards. Empty: OpenSSL could not compute it,
    /// because its settings forbid the algorithm or memory has run out.
    [[nodiscard]] QByteArray takeResult();

private:
    struct CContextDeleter
    {
        void operator()(evp_md_ctx_st *context) const;
    };

    std::unique_ptr<evp_md_ctx_st, CContextDeleter> m_context; ///< null: it has failed, or is done
};

} // namespace Viewer::UpdateFile
