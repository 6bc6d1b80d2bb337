#pragma once

#include "featuredescription.h"

#include <QByteArray>
#include <QDeadlineTimer>

#include <optional>

namespace Viewer::Camera::GenICam {

/// Reads the memory of one camera without the library, which would believe what it reads. One
/// thread.
class CMemoryReader
{
public:
    virtual ~CMemoryReader();
    Q_DISABLE_COPY(CMemoryReader)

    /// The @p size bytes from @p address on. Blocks; throws CFeatureError when the camera refuses
    /// or does not answer in time.
    [[nodiscard]] QByteArray read(quint64 address, qint64 size);

    /// Where the camera says that the description of its features is. Like read().
    [[nodiscard]] virtual CDescriptionPlace findDescription() = 0;

    /// The CFeatureError of a camera that says nothing when it is opened.
    [[noreturn]] static void throwNoAnswer();

protected:
    struct CRequest
    {
        quint64 address = 0;
        quint16 size = 0;
        quint16 id = 0; ///< never 0
    };

    struct CAnswer
    {
        enum class EKind {
            Bytes, ///< what was read, if the status says so
            Pending, ///< the camera asks for patience
            Other,
        };
        EKind kind = EKind::Other;
        quint16 status = 0;
        quint16 id = 0; ///< of the request
        QByteArray bytes;
    };

    /// Memory ends before @p end and is read in multiples of @p unit bytes. All reading ends when
    /// @p deadline does.
    CMemoryReader(quint64 end, int unit, const QDeadlineTimer &deadline);

    /// From now on at most @p size bytes are asked for at once; a multiple of the unit, at least
    /// one.
    void limitBlocks(int size);

    virtual void send(const CRequest &request, const QDeadlineTimer &deadline) = 0;

    /// What has come next, whatever it is; nothing: there is nothing to wait for any more.
    [[nodiscard]] virtual std::optional<CAnswer> receive(const QDeadlineTimer &deadline) = 0;

private:
    [[nodiscard]] QByteArray readBlock(quint64 address, quint16 size);
    [[nodiscard]] std::optional<CAnswer> waitForAnswer(const QDeadlineTimer &deadline);

    const quint64 m_end;
    const int m_unit;
    const QDeadlineTimer m_deadline;
    int m_blockSize;
    quint16 m_id = 0;
};

/// Throws CFeatureError when the description that @p reader finds must not be given to the library.
void checkFeatureDescription(CMemoryReader &reader);

} // namespace Viewer::Camera::GenICam
