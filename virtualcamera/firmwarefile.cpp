#include "firmwarefile.h"

#include <QList>

#include <algorithm>

namespace VirtualCamera {

bool CFirmwareFile::open(quint32 mode)
{
    if (m_state != EState::Closed)
        return false;
    switch (mode) {
    case static_cast<quint32>(EOpenMode::Read):
        m_state = EState::Reading;
        return true;
    case static_cast<quint32>(EOpenMode::Write):
        m_state = EState::Writing;
        m_content.clear();
        return true;
    case static_cast<quint32>(EOpenMode::ReadWrite):
        m_state = EState::ReadingAndWriting;
        return true;
    default:
        return false;
    }
}

bool CFirmwareFile::close()
{
    const bool wasOpen = isOpen();
    m_state = EState::Closed;
    return wasOpen;
}

void CFirmwareFile::abandon()
{
    if (m_state == EState::Writing || m_state == EState::ReadingAndWriting)
        m_content.clear();
    m_state = EState::Closed;
}

bool CFirmwareFile::remove()
{
    if (isOpen())
        return false;
    m_content.clear();
    return true;
}

int CFirmwareFile::write(quint32 offset, const QByteArray &bytes)
{
    const bool isWritable = m_state == EState::Writing || m_state == EState::ReadingAndWriting;
    if (!isWritable || offset > static_cast<quint32>(m_content.size())
        || offset + static_cast<qint64>(bytes.size()) > MAXIMUM_SIZE)
        return -1;
    m_content.replace(static_cast<int>(offset), bytes.size(), bytes);
    return bytes.size();
}

QByteArray CFirmwareFile::read(quint32 offset, int length) const
{
    const bool isReadable = m_state == EState::Reading || m_state == EState::ReadingAndWriting;
    if (!isReadable || offset > static_cast<quint32>(m_content.size()))
        return {};
    const QByteArray bytes = m_content.mid(static_cast<int>(offset), length);
    return bytes.isNull() ? QByteArray("") : bytes;
}

bool CFirmwareFile::isOpen() const
{
    return m_state != EState::Closed;
}

const QByteArray &CFirmwareFile::getContent() const
{
    return m_content;
}

QByteArray CFirmwareFile::getVersion() const
{
    const QByteArray size = readHeader("size:");
    const bool isWhole = size.isEmpty() || size.toLongLong() == m_content.size();
    return isOpen() || !isWhole ? QByteArray() : readHeader("version:");
}

QByteArray CFirmwareFile::readHeader(const QByteArray &name) const
{
    constexpr int MAXIMUM_HEADER_SIZE = 4096;
    const QList<QByteArray> lines = m_content.left(MAXIMUM_HEADER_SIZE).split('\n');
    for (const QByteArray &line : lines) {
        if (line.trimmed().isEmpty())
            break;
        if (line.startsWith(name))
            return line.mid(name.size()).trimmed();
    }
    return {};
}

} // namespace VirtualCamera
