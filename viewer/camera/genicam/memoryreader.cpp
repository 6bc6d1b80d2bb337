#include "memoryreader.h"

#include "camerafeatures.h"

#include <algorithm>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;

static constexpr quint16 ACCESS_DENIED = 0x8006;
static constexpr int BLOCK_SIZE = 512;

/// Requests get lost: how often one is sent, and how long each is waited for.
static constexpr int ATTEMPTS = 3;
static constexpr int ATTEMPT_MS = 300;

CMemoryReader::CMemoryReader(quint64 end, int unit, const QDeadlineTimer &deadline)
    : m_end(end)
    , m_unit(unit)
    , m_deadline(deadline)
    , m_blockSize(BLOCK_SIZE)
{
}

CMemoryReader::~CMemoryReader() = default;

void CMemoryReader::limitBlocks(int size)
{
    m_blockSize = std::min(size, BLOCK_SIZE);
}

[[noreturn]] static void throwUnreadable()
{
    throw CFeatureError(CErrorText::tr("its feature description could not be read"),
                        CFeatureError::EReason::Refused);
}

void CMemoryReader::throwNoAnswer()
{
    throw CFeatureError(
        CErrorText::tr("%1: %2").arg(CErrorText::tr("it could not be opened"), getNoAnswerText()),
        CFeatureError::EReason::NoAnswer);
}

QByteArray CMemoryReader::read(quint64 address, qint64 size)
{
    QByteArray bytes;
    bytes.reserve(static_cast<int>(size) + m_unit);
    while (bytes.size() < size) {
        const quint64 place = address + static_cast<quint64>(bytes.size());
        if (place < address || place > m_end - BLOCK_SIZE)
            throwUnreadable();
        const qint64 wanted = std::min<qint64>(size - bytes.size(), m_blockSize);
        bytes += readBlock(place, static_cast<quint16>((wanted + m_unit - 1) / m_unit * m_unit));
    }
    bytes.truncate(static_cast<int>(size));
    return bytes;
}

QByteArray CMemoryReader::readBlock(quint64 address, quint16 size)
{
    m_id = m_id == 0xFFFF ? 1 : m_id + 1; // 0 is no id
    for (int attempt = 0; attempt < ATTEMPTS && !m_deadline.hasExpired(); ++attempt) {
        const QDeadlineTimer deadline = std::min(m_deadline, QDeadlineTimer(ATTEMPT_MS));
        send({address, size, m_id}, deadline);
        const std::optional<CAnswer> answer = waitForAnswer(deadline);
        if (!answer)
            continue;
        if (answer->status == ACCESS_DENIED)
            throw CFeatureError(getInUseText(), CFeatureError::EReason::InUse);
        if (answer->status != 0 || answer->bytes.size() != size)
            throwUnreadable();
        return answer->bytes;
    }
    throwNoAnswer();
}

std::optional<CMemoryReader::CAnswer> CMemoryReader::waitForAnswer(const QDeadlineTimer &deadline)
{
    QDeadlineTimer patience = deadline;
    while (!patience.hasExpired()) {
        const std::optional<CAnswer> answer = receive(patience);
        if (!answer)
            break;
        if (answer->id != m_id)
            continue;
        if (answer->kind == CAnswer::EKind::Bytes)
            return answer;
        // How much patience is ours to say.
        if (answer->kind == CAnswer::EKind::Pending)
            patience = m_deadline;
    }
    return {};
}

void checkFeatureDescription(CMemoryReader &reader)
{
    const CDescriptionPlace place = reader.findDescription();
    CErrorText fault = place.fault;
    if (fault.isEmpty())
        fault = findDescriptionFault(reader.read(place.address, place.size), place.isPacked);
    if (!fault.isEmpty())
        throw CFeatureError(fault, CFeatureError::EReason::Refused);
}

} // namespace Viewer::Camera::GenICam
