#include "genicamstream.h"

#include "featurelist.h"
#include "logging.h"

#include <algorithm>
#include <limits>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;

static constexpr guint64 POP_TIME = 50'000; // microseconds; for the end of the thread

CGenICamStream::CGenICamStream(const CFoundCamera &camera)
    : m_device(camera)
{
}

CGenICamStream::~CGenICamStream()
{
    close();
}

QString CGenICamStream::getName() const
{
    return m_device.getName();
}

static void onControlLost(ArvDevice *, gpointer isControlLost)
{
    *static_cast<std::atomic<bool> *>(isControlLost) = true;
}

void CGenICamStream::open(std::chrono::milliseconds timeLimit)
{
    m_device.open(timeLimit);
    m_isControlLost = false;
    g_signal_connect(m_device.getDevice(), "control-lost", G_CALLBACK(onControlLost),
                     &m_isControlLost);
}

void CGenICamStream::close() noexcept
{
    stop();
    if (m_device.getDevice())
        g_signal_handlers_disconnect_by_data(m_device.getDevice(), &m_isControlLost);
    m_device.close();
}

QVector<CFeatureInfo> CGenICamStream::readFeatures(const QStringList &names,
                                                   const std::function<void()> &pause)
{
    return m_device.translate(
        [&] { return listFeatures(m_device.getDevice(), names, m_stream != nullptr, pause); });
}

void CGenICamStream::writeFeature(const QString &name, const QString &value)
{
    m_device.translate([&] { CFeatures(m_device.getDevice()).write(name.toUtf8(), value); });
}

void CGenICamStream::executeCommand(const QString &name)
{
    m_device.translate([&] { CFeatures(m_device.getDevice()).execute(name.toUtf8()); });
}

qint64 CGenICamStream::getFrameSize()
{
    return m_device.translate([this] {
        return std::max<qint64>(CFeatures(m_device.getDevice()).readInteger("PayloadSize"), 1);
    });
}

/// Many cameras let nobody change what the size of an image depends on while this is set, and send
/// nothing before.
void CGenICamStream::setLocked(bool isLocked) noexcept
{
    CErrorGuard error;
    if (ARV_IS_GC_FEATURE_NODE(arv_device_get_feature(m_device.getDevice(), "TLParamsLocked")))
        arv_device_set_integer_feature_value(m_device.getDevice(), "TLParamsLocked",
                                             isLocked ? 1 : 0, error.receive());
}

void CGenICamStream::start(uchar *memory, int slotCount, qint64 slotSize,
                           const FrameListener &listener)
{
    stop();
    m_device.translate([&] {
        ArvDevice *const device = m_device.getDevice();
        if (ARV_IS_GV_DEVICE(device)) {
            CErrorGuard error;
            // As large as the way to here lets them through; the camera's own size otherwise.
            arv_gv_device_auto_packet_size(ARV_GV_DEVICE(device), error.receive());
            if (error)
                qCDebug(genICamLog).noquote() << getName() << "packet size:" << error.getMessage();
        }
        CErrorGuard error;
        m_stream.reset(arv_device_create_stream(device, nullptr, nullptr, error.receive()));
        if (error || !m_stream)
            throwError(error, CErrorText::tr("its images could not be asked for"));
        m_listener = listener;
        m_statistics = {};
        m_buffers.clear();
        for (int slot = 0; slot < slotCount; ++slot) {
            m_buffers.emplace_back(arv_buffer_new_full(static_cast<std::size_t>(slotSize),
                                                       memory + slot * slotSize,
                                                       GINT_TO_POINTER(slot), nullptr));
            giveBack(slot);
        }
        setLocked(true);
        m_isStopping = false;
        m_thread = std::thread([this] { takeFrames(); });
        try {
            CFeatures(device).execute("AcquisitionStart");
        } catch (...) {
            stop();
            throw;
        }
    });
}

void CGenICamStream::giveBack(int slot)
{
    // The stream takes over a reference.
    arv_stream_push_buffer(
        m_stream.get(),
        ARV_BUFFER(g_object_ref(m_buffers.at(static_cast<std::size_t>(slot)).get())));
}

void CGenICamStream::takeFrames()
{
    while (!m_isStopping) {
        if (ArvBuffer *const buffer = arv_stream_timeout_pop_buffer(m_stream.get(), POP_TIME))
            takeFrame(buffer);
    }
}

/// Whether so many bytes as the @p frame says can be all pixels that it says. Bits of a pixel are
/// a part of each code.
static bool hasAllPixels(const CFrameInfo &frame)
{
    const qint64 bits = frame.pixelFormat >> 16 & 0xff;
    return frame.width >= 0 && frame.height >= 0
        && qint64(frame.width) * frame.height <= std::numeric_limits<qint64>::max() / 256
        && (qint64(frame.width) * frame.height * bits + 7) / 8 <= frame.size;
}

void CGenICamStream::takeFrame(ArvBuffer *buffer)
{
    CFrameInfo frame;
    frame.slot = GPOINTER_TO_INT(arv_buffer_get_user_data(buffer));
    bool isComplete = arv_buffer_get_status(buffer) == ARV_BUFFER_STATUS_SUCCESS;
    const ArvBufferPayloadType type = arv_buffer_get_payload_type(buffer);
    const bool hasImage = type == ARV_BUFFER_PAYLOAD_TYPE_IMAGE
        || type == ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA;
    if (isComplete && hasImage) {
        std::size_t size = 0;
        static_cast<void>(arv_buffer_get_data(buffer, &size));
        gint padding = 0;
        gint linesBelow = 0;
        arv_buffer_get_image_padding(buffer, &padding, &linesBelow);
        frame.pixelFormat = arv_buffer_get_image_pixel_format(buffer);
        frame.width = arv_buffer_get_image_width(buffer);
        frame.height = arv_buffer_get_image_height(buffer);
        frame.linePadding = padding;
        frame.size = static_cast<qint64>(size);
        constexpr guint64 GREATEST = std::numeric_limits<qint64>::max();
        frame.number = arv_buffer_get_frame_id(buffer) & GREATEST;
        frame.timestamp = static_cast<qint64>(arv_buffer_get_timestamp(buffer) & GREATEST);
        // The library believes what a leader says, even where less has come.
        isComplete = hasAllPixels(frame);
    }
    {
        const std::lock_guard lock(m_mutex);
        if (isComplete) {
            ++m_statistics.frames;
            m_statistics.bytes += frame.size;
        } else {
            ++m_statistics.incompleteFrames;
        }
    }
    if (isComplete && hasImage) {
        g_object_unref(buffer);
        m_listener(frame);
    } else {
        arv_stream_push_buffer(m_stream.get(), buffer);
    }
}

void CGenICamStream::stop()
{
    if (!m_stream)
        return;
    CErrorGuard error;
    if (!m_isControlLost)
        arv_device_execute_command(m_device.getDevice(), "AcquisitionStop", error.receive());
    m_isStopping = true;
    if (m_thread.joinable())
        m_thread.join();
    if (!m_isControlLost)
        setLocked(false);
    m_stream.reset();
    m_buffers.clear();
}

CStreamStatistics CGenICamStream::getStatistics()
{
    guint64 resent = 0;
    guint64 lost = 0;
    if (m_stream && ARV_IS_GV_STREAM(m_stream.get()))
        arv_gv_stream_get_statistics(ARV_GV_STREAM(m_stream.get()), &resent, &lost);
    const std::lock_guard lock(m_mutex);
    CStreamStatistics statistics = m_statistics;
    statistics.resentPackets = static_cast<qint64>(resent);
    statistics.lostPackets = static_cast<qint64>(lost);
    return statistics;
}

void CGenICamStream::check()
{
    if (m_isControlLost)
        throw CCameraError(getName(),
                           CErrorText::tr("the connection was lost; check its cable and its power "
                                          "supply"));
}

} // namespace Viewer::Camera::GenICam
