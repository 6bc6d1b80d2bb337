#include "fileupload.h"

#include "viewer/text/visibletext.h"

#include <QThread>

#include <algorithm>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;
using namespace std::chrono_literals;

// Names that the standard gives.
static const QByteArray ACCESS_BUFFER = QByteArrayLiteral("FileAccessBuffer");
static const QByteArray ACCESS_LENGTH = QByteArrayLiteral("FileAccessLength");
static const QByteArray ACCESS_OFFSET = QByteArrayLiteral("FileAccessOffset");
static const QByteArray OPEN_MODE = QByteArrayLiteral("FileOpenMode");
static const QByteArray OPERATION_EXECUTE = QByteArrayLiteral("FileOperationExecute");
static const QByteArray OPERATION_RESULT = QByteArrayLiteral("FileOperationResult");
static const QByteArray OPERATION_SELECTOR = QByteArrayLiteral("FileOperationSelector");
static const QByteArray OPERATION_STATUS = QByteArrayLiteral("FileOperationStatus");
static const QByteArray SELECTOR = QByteArrayLiteral("FileSelector");

/// More than one block at a time would only lengthen the wait for each single one.
static constexpr quint64 MAXIMUM_BLOCK_SIZE = 1024 * 1024;

[[noreturn]] static void fail(const CErrorText &cause)
{
    throw CFeatureError(cause, CFeatureError::EReason::Refused);
}

CFileUpload::CFileUpload(const CFeatures &features, const QString &fileName,
                         const QDeadlineTimer &deadline)
    : m_features(features)
    , m_fileName(fileName)
    , m_deadline(deadline)
{
}

CFileUpload::~CFileUpload()
{
    if (!m_mayBeOpen)
        return;
    try {
        m_features.write(OPERATION_SELECTOR, QStringLiteral("Close"));
        m_features.execute(OPERATION_EXECUTE);
    } catch (const CFeatureError &) {
        // The failure that led here says more.
    }
}

void CFileUpload::open()
{
    attempt([this] { return CErrorText::tr("opening its file \"%1\" failed").arg(m_fileName); },
            [this] {
                prepare();
                // A camera that has opened the file may still fail to say so.
                m_mayBeOpen = true;
                if (!tryToOperate(QByteArrayLiteral("Open"))) {
                    // A program that has ended in the middle may have left it open: a camera on USB
                    // does not notice.
                    tryToOperate(QByteArrayLiteral("Close"));
                    operate(QByteArrayLiteral("Open"));
                }
                m_isOpened = true;
            });
}

int CFileUpload::getBlockSize() const
{
    return static_cast<int>(m_buffer.length);
}

void CFileUpload::writeBlock(const QByteArray &block)
{
    attempt(
        [this] {
            return CErrorText::tr("writing its file \"%1\" failed at byte %2")
                .arg(m_fileName, QString::number(m_offset));
        },
        [this, &block] { write(block); });
}

void CFileUpload::close()
{
    // Whether it works or not, it is not tried again.
    m_mayBeOpen = false;
    attempt([this] { return CErrorText::tr("closing its file \"%1\" failed").arg(m_fileName); },
            [this] { operate(QByteArrayLiteral("Close")); });
}

template <typename Describe, typename Action>
void CFileUpload::attempt(Describe describe, Action action)
{
    try {
        action();
    } catch (const CFeatureError &error) {
        // Asking a dead camera to close its file would only take as long again.
        if (error.getReason() == CFeatureError::EReason::NoAnswer)
            m_mayBeOpen = false;
        const bool isRefusal = error.getReason() == CFeatureError::EReason::Refused;
        throw CFeatureError(CErrorText::tr("%1: %2").arg(describe(), error.getText()),
                            isRefusal && m_isOpened ? CFeatureError::EReason::Unknown
                                                    : error.getReason());
    }
}

void CFileUpload::prepare()
{
    m_buffer = m_features.findRegister(ACCESS_BUFFER);
    // Whole words only: the last block is filled up to one.
    m_buffer.length = std::min(m_buffer.length, MAXIMUM_BLOCK_SIZE) / 4 * 4;
    if (m_buffer.length == 0)
        fail(CErrorText::tr("its buffer for files has no room (length 0)"));
    m_longestWrite = m_features.getLongestWrite();
    m_hasOffset = m_features.has(ACCESS_OFFSET);
    m_features.write(SELECTOR, m_fileName);
    m_features.write(OPEN_MODE, QStringLiteral("Write"));
}

void CFileUpload::write(const QByteArray &block)
{
    if (!m_isWriteSelected) {
        m_features.write(OPERATION_SELECTOR, QStringLiteral("Write"));
        m_isWriteSelected = true;
    }
    if (m_hasOffset)
        m_features.writeInteger(ACCESS_OFFSET, m_offset);
    if (m_length != block.size()) {
        m_features.writeInteger(ACCESS_LENGTH, block.size());
        m_length = block.size();
    }
    for (int done = 0; done < block.size(); done += m_longestWrite)
        m_features.writeMemory(m_buffer.address + static_cast<quint64>(done),
                               block.mid(done, m_longestWrite));
    execute();
    // The number of bytes says it all; the status is asked for only when they do not fit.
    const qint64 written = m_features.readInteger(OPERATION_RESULT);
    if (written != block.size()) {
        checkStatus();
        fail(CErrorText::tr("it accepted only %1 of %2 bytes")
                 .arg(QString::number(written), QString::number(block.size())));
    }
    m_offset += written;
}

bool CFileUpload::tryToOperate(const QByteArray &operation)
{
    m_features.write(OPERATION_SELECTOR, QString::fromLatin1(operation));
    execute();
    return m_features.read(OPERATION_STATUS) == QLatin1String("Success");
}

void CFileUpload::operate(const QByteArray &operation)
{
    if (!tryToOperate(operation))
        checkStatus();
}

void CFileUpload::execute()
{
    m_features.execute(OPERATION_EXECUTE);
    while (!m_features.isDone(OPERATION_EXECUTE)) {
        if (m_deadline.hasExpired())
            throw CFeatureError(CErrorText::tr("it took too long"),
                                CFeatureError::EReason::Unknown);
        QThread::msleep(1);
    }
}

void CFileUpload::checkStatus() const
{
    const QString status = m_features.read(OPERATION_STATUS);
    if (status != QLatin1String("Success"))
        fail(CErrorText::tr("it reports the status \"%1\"").arg(Text::shorten(status)));
}

} // namespace Viewer::Camera::GenICam
