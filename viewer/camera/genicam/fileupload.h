#pragma once

#include "camerafeatures.h"

#include "viewer/camera/icameradevice.h"

#include <QDeadlineTimer>

namespace Viewer::Camera::GenICam {

/// Writes one file of a camera through the standard features for file access, block by block, and
/// sends no command that the standard does not need. The file is closed on every way out; a camera
/// that does not answer closes it when control over it ends.
class CFileUpload
{
public:
    CFileUpload(const CFeatures &features, const QString &fileName, const QDeadlineTimer &deadline);
    ~CFileUpload();
    Q_DISABLE_COPY(CFileUpload)

    /// Opens the camera's file to write. Throws CFeatureError, as all operations do; only in this
    /// one it may be a refusal.
    void open();

    /// Bytes that one block holds at most. The file is open.
    [[nodiscard]] int getBlockSize() const;

    /// Writes @p block behind those before.
    void writeBlock(const QByteArray &block);

    /// Closes the file and learns whether the camera has taken all of it.
    void close();

private:
    void prepare();
    void write(const QByteArray &block);
    /// Whether the camera reports success.
    bool tryToOperate(const QByteArray &operation);
    void operate(const QByteArray &operation);
    void execute();
    void checkStatus() const;

    /// Runs @p action; what it throws is thrown on behind the text that @p describe then returns.
    template <typename Describe, typename Action>
    void attempt(Describe describe, Action action);

    const CFeatures &m_features;
    const QString m_fileName;
    const QDeadlineTimer m_deadline;
    CFeatures::CRegister m_buffer;
    int m_longestWrite = 0;
    bool m_hasOffset = false;
    qint64 m_offset = 0;
    qint64 m_length = -1; ///< as the camera knows it; negative: it does not yet
    bool m_mayBeOpen = false;
    bool m_isOpened = false; ///< with which the camera may have dropped what it held
    bool m_isWriteSelected = false;
};

} // namespace Viewer::Camera::GenICam
