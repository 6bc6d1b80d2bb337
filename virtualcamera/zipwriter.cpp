#include "zipwriter.h"

#include <QtEndian>

#include <zlib.h>

namespace VirtualCamera {

namespace {

constexpr qint64 BLANK_SIZE = 1024 * 1024;

template <typename T>
void append(QByteArray &bytes, T number)
{
    number = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
}

/// Bytes, packed as a piece that can stand anywhere in a stream.
struct CPiece
{
    explicit CPiece(const QByteArray &bytes)
        : size(bytes.size())
    {
        z_stream stream{};
        constexpr int NO_HEADER = -15;
        constexpr int USUAL_MEMORY = 8;
        deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, NO_HEADER, USUAL_MEMORY,
                     Z_DEFAULT_STRATEGY);
        constexpr int FLUSH_MARKER = 16;
        packed.resize(static_cast<int>(deflateBound(&stream, uLong(size))) + FLUSH_MARKER);
        stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
        stream.avail_in = uInt(size);
        stream.next_out = reinterpret_cast<Bytef *>(packed.data());
        stream.avail_out = uInt(packed.size());
        deflate(&stream, Z_FULL_FLUSH);
        packed.resize(static_cast<int>(stream.total_out));
        deflateEnd(&stream);
        checksum = crc32(0, reinterpret_cast<const Bytef *>(bytes.constData()), uInt(size));
    }

    qint64 size;
    QByteArray packed;
    uLong checksum = 0;
};

/// One file's content, packed.
struct CStream
{
    void append(const CPiece &piece)
    {
        packed += piece.packed;
        checksum = crc32_combine(checksum, piece.checksum, z_off_t(piece.size));
        size += piece.size;
    }

    QByteArray packed;
    uLong checksum = 0;
    qint64 size = 0;
};

CPiece makeBlanks(qint64 size)
{
    return CPiece(QByteArray(static_cast<int>(size), ' '));
}

CStream pack(const QByteArray &content, qint64 size)
{
    CStream stream;
    stream.append(CPiece(content));
    if (size - stream.size >= BLANK_SIZE) {
        const CPiece blanks = makeBlanks(BLANK_SIZE);
        while (size - stream.size >= blanks.size)
            stream.append(blanks);
    }
    if (size > stream.size)
        stream.append(makeBlanks(size - stream.size));
    // An empty block that is the last one.
    stream.packed.append("\x03\x00", 2);
    return stream;
}

} // namespace

void CZipWriter::add(const QByteArray &name, const QByteArray &content, qint64 size)
{
    const CStream stream = pack(content, size);

    // What the header in front of the file and the one in the directory have in common.
    QByteArray header;
    append<quint16>(header, 20); // version that is needed to unpack
    append<quint16>(header, 0);
    append<quint16>(header, 8); // deflated
    append<quint32>(header, 0x00210000); // 1 January 1980
    append<quint32>(header, static_cast<quint32>(stream.checksum));
    append<quint32>(header, static_cast<quint32>(stream.packed.size()));
    append<quint32>(header, static_cast<quint32>(stream.size));
    append<quint16>(header, static_cast<quint16>(name.size()));
    append<quint16>(header, 0);

    m_directory += QByteArray("PK\x01\x02\x14\0", 6) + header + QByteArray(10, '\0');
    append<quint32>(m_directory, static_cast<quint32>(m_files.size()));
    m_directory += name;
    m_files += "PK\x03\x04" + header + name + stream.packed;
    ++m_count;
}

QByteArray CZipWriter::getArchive() const
{
    QByteArray end("PK\x05\x06\0\0\0\0", 8);
    append<quint16>(end, static_cast<quint16>(m_count));
    append<quint16>(end, static_cast<quint16>(m_count));
    append<quint32>(end, static_cast<quint32>(m_directory.size()));
    append<quint32>(end, static_cast<quint32>(m_files.size()));
    constexpr int COMMENT_LENGTH_SIZE = 2;
    const int length = m_files.size() + m_directory.size() + end.size() + COMMENT_LENGTH_SIZE;
    const int comment = (4 - length % 4) % 4;
    append<quint16>(end, static_cast<quint16>(comment));
    return m_files + m_directory + end + QByteArray(comment, ' ');
}

} // namespace VirtualCamera
