#include "fileupload.h"

#include "viewer/text/visibletext.h"

#include <QThread>

#include <algorithm>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;
using namespace std::chrono_literals;

// Names that the standard gives.
static const QByteArray AccessBuffer = QByteArrayLiteral("FileAccessBuffer");
static const QByteArray AccessLength = QByteArrayLiteral("FileAccessLength");
static const QByteArray AccessOffset = QByteArrayLiteral("FileAccessOffset");
static const QByteArray OpenMode = QByteArrayLiteral("FileOpenMode");
static const QByteArray OperationExecute = QByteArrayLiteral("FileOperationExecute");
static const QByteArray OperationResult = QByteArrayLiteral("FileOperationResult");
static const QByteArray OperationSelector = QByteArrayLiteral("FileOperationSelector");
static const QByteArray OperationStatus = QByteArrayLiteral("FileOperationStatus");
static const QByteArray Selector = QByteArrayLiteral("FileSelector");

/// More than one block at a time would only lengthen the wait for each single one.
static constexpr quint64 MaximumBlockSize = 1024 * 1024;

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
        m_features.write(OperationSelector, QStringLiteral("Close"));
        m_features.execute(OperationExecute);
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
                operate(QByteArrayLiteral("Open"));
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
    m_buffer = m_features.findRegister(AccessBuffer);
    // Whole words only: the last block is filled up to one.
    m_buffer.length = std::min(m_buffer.length, MaximumBlockSize) / 4 * 4;
    if (m_buffer.length == 0)
        fail(CErrorText::tr("its buffer for files has no room (length 0)"));
    m_hasOffset = m_features.has(AccessOffset);
    m_features.write(Selector, m_fileName);
    m_features.write(OpenMode, QStringLiteral("Write"));
}

void CFileUpload::write(const QByteArray &block)
{
    if (!m_isWriteSelected) {
        m_features.write(OperationSelector, QStringLiteral("Write"));
        m_isWriteSelected = true;
    }
    if (m_hasOffset)
        m_features.writeInteger(AccessOffset, m_offset);
    if (m_length != block.size()) {
        m_features.writeInteger(AccessLength, block.size());
        m_length = block.size();
    }
    m_features.writeMemory(m_buffer.address, block.leftJustified((block.size() + 3) / 4 * 4, '\0'));
    execute();
    // The number of bytes says it all; the status is asked for only when they do not fit.
    const qint64 written = m_features.readInteger(OperationResult);
    if (written != block.size()) {
        checkStatus();
        fail(CErrorText::tr("it accepted only %1 of %2 bytes")
                 .arg(QString::number(written), QString::number(block.size())));
    }
    m_offset += written;
}

void CFileUpload::operate(const QByteArray &operation)
{
    m_features.write(OperationSelector, QString::fromLatin1(operation));
    execute();
    checkStatus();
}

void CFileUpload::execute()
{
    m_features.execute(OperationExecute);
    while (!m_features.isDone(OperationExecute)) {
        if (m_deadline.hasExpired())
            throw CFeatureError(CErrorText::tr("it took too long"),
                                CFeatureError::EReason::Unknown);
        QThread::msleep(1);
    }
}

void CFileUpload::checkStatus() const
{
    const QString status = m_features.read(OperationStatus);
    if (status != QLatin1String("Success"))
        fail(CErrorText::tr("it reports the status \"%1\"").arg(Text::shorten(status)));
}

} // namespace Viewer::Camera::GenICam
