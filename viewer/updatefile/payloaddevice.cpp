#include "payloaddevice.h"

#include "updatefileerror.h"
#include "viewer/text/visibletext.h"

#include <zip.h>

namespace Viewer::UpdateFile {

using Text::CErrorText;
void CPayloadDevice::CFileCloser::operator()(zip_file *file) const
{
    zip_fclose(file);
}

CPayloadDevice::CPayloadDevice(std::shared_ptr<zip> archive, const CSource &source)
    : m_archive(std::move(archive))
    , m_source(source)
    , m_remaining(source.size)
{
    m_file.reset(zip_fopen_index(m_archive.get(), m_source.index, 0));
    if (m_file)
        setOpenMode(QIODevice::ReadOnly | QIODevice::Unbuffered);
    else
        setFault(CErrorText::tr("the file \"%1\" cannot be read; the archive is damaged"));
}

CPayloadDevice::~CPayloadDevice() = default;

CErrorText CPayloadDevice::getFault() const
{
    return m_fault;
}

bool CPayloadDevice::isSequential() const
{
    return true;
}

bool CPayloadDevice::atEnd() const
{
    return m_remaining == 0 || !m_fault.isEmpty();
}

qint64 CPayloadDevice::bytesAvailable() const
{
    return atEnd() ? 0 : m_remaining;
}

qint64 CPayloadDevice::readData(char *data, qint64 maximumSize)
{
    if (atEnd())
        return -1;
    if (maximumSize <= 0)
        return 0;

    const qint64 wanted = qMin(maximumSize, m_remaining);
    const qint64 size = zip_fread(m_file.get(), data, static_cast<zip_uint64_t>(wanted));
    if (size <= 0) {
        setFault(CErrorText::tr("the file \"%1\" is damaged and cannot be unpacked"));
        return -1;
    }
    m_hash.addData(data, size);
    m_remaining -= size;
    if (m_remaining == 0 && !checkEnd())
        return -1;
    return size;
}

qint64 CPayloadDevice::writeData(const char *, qint64)
{
    return -1;
}

bool CPayloadDevice::checkEnd()
{
    // The library compares its own checksum only when it is asked for what follows the last byte.
    char next = 0;
    const qint64 size = zip_fread(m_file.get(), &next, 1);
    if (size > 0) {
        setFault(CErrorText::tr("the file \"%1\" unpacks to more bytes than the archive declares"));
        return false;
    }
    if (size < 0) {
        setFault(CErrorText::tr("the file \"%1\" is damaged and cannot be unpacked"));
        return false;
    }
    if (m_source.sha256.isEmpty())
        return true;
    const QByteArray sha256 = m_hash.takeResult();
    if (sha256 != m_source.sha256) {
        setFault(
            sha256.isEmpty()
                ? CErrorText::tr("the SHA-256 of the payload \"%1\" cannot be computed; check the "
                                 "settings of OpenSSL on this computer")
                : CErrorText::tr("the payload \"%1\" does not match its SHA-256 in update.json; "
                                 "one of the two was replaced"));
        return false;
    }
    return true;
}

void CPayloadDevice::setFault(const CErrorText &cause)
{
    m_fault = cause.arg(Text::shorten(m_source.name));
    setErrorString(CUpdateFileError(m_source.archivePath, m_fault).getMessage());
}

} // namespace Viewer::UpdateFile
