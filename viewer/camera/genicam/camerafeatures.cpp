#include "camerafeatures.h"

#include "viewer/text/visibletext.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

namespace Viewer::Camera::GenICam {

using Text::CErrorText;
using EReason = CFeatureError::EReason;

CFeatureError::CFeatureError(const CErrorText &text, EReason reason)
    : BaseException(text.getEnglish())
    , m_text(text)
    , m_reason(reason)
{
}

CFeatureError::~CFeatureError() = default;

CErrorText CFeatureError::getText() const
{
    return m_text;
}

EReason CFeatureError::getReason() const
{
    return m_reason;
}

CErrorText getNoAnswerText()
{
    return CErrorText::tr("it did not answer; check its cable, its power supply and the network");
}

CErrorText getInUseText()
{
    return CErrorText::tr("it is in use by another application; close that application "
                          "and start the update again");
}

/// Characters of what the library says, which may repeat what the camera says.
static constexpr int MAXIMUM_REASON_LENGTH = 300;

static CErrorText describe(const CErrorGuard &error)
{
    if (error.is(ARV_DEVICE_ERROR_TIMEOUT) || error.is(ARV_DEVICE_ERROR_NOT_CONNECTED))
        return getNoAnswerText();
    // An application that has control is refused nothing for want of rights.
    if (error.is(ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED)
        || error.is(ARV_DEVICE_ERROR_NOT_CONTROLLER))
        return CErrorText::tr("control over it was lost; close other applications that use it");
    if (error.is(ARV_DEVICE_ERROR_PROTOCOL_ERROR_BUSY))
        return CErrorText::tr("it is busy; try again later");
    return CErrorText::tr("it refused (%1)")
        .arg(Text::shorten(error.getMessage().simplified(), MAXIMUM_REASON_LENGTH));
}

static EReason findReason(const CErrorGuard &error, EReason refusal)
{
    if (error.is(ARV_DEVICE_ERROR_TIMEOUT) || error.is(ARV_DEVICE_ERROR_NOT_CONNECTED))
        return EReason::NoAnswer;
    // Of the wire, not of the camera.
    return error.is(ARV_DEVICE_ERROR_TRANSFER_ERROR) ? EReason::Unknown : refusal;
}

void throwError(const CErrorGuard &error, const CErrorText &attempt, EReason refusal)
{
    throw CFeatureError(CErrorText::tr("%1: %2").arg(attempt, describe(error)),
                        findReason(error, refusal));
}

static CErrorText readingOf(const QByteArray &name)
{
    return CErrorText::tr("its feature \"%1\" could not be read").arg(QString::fromUtf8(name));
}

static CErrorText writingOf(const QByteArray &name, const QString &value)
{
    return CErrorText::tr("its feature \"%1\" could not be set to \"%2\"")
        .arg(QString::fromUtf8(name), Text::shorten(value));
}

CFeatures::CFeatures(ArvDevice *device)
    : m_device(device)
{
}

bool CFeatures::has(const QByteArray &name) const
{
    return ARV_IS_GC_FEATURE_NODE(arv_device_get_feature(m_device, name.constData()));
}

ArvGcNode *CFeatures::getNode(const QByteArray &name, EReason ifMissing) const
{
    ArvGcNode *const node = arv_device_get_feature(m_device, name.constData());
    if (!ARV_IS_GC_FEATURE_NODE(node))
        throw CFeatureError(CErrorText::tr("it has no feature \"%1\"; the update file may be for "
                                           "another model")
                                .arg(QString::fromUtf8(name)),
                            ifMissing);
    return node;
}

QString CFeatures::read(const QByteArray &name) const
{
    CErrorGuard error;
    const char *const value = arv_gc_feature_node_get_value_as_string(
        ARV_GC_FEATURE_NODE(getNode(name, EReason::Unknown)), error.receive());
    if (error)
        throwError(error, readingOf(name), EReason::Unknown);
    return QString::fromUtf8(value);
}

void CFeatures::write(const QByteArray &name, const QString &value) const
{
    CErrorGuard error;
    arv_gc_feature_node_set_value_from_string(ARV_GC_FEATURE_NODE(getNode(name)),
                                              value.toUtf8().constData(), error.receive());
    if (error)
        throwError(error, writingOf(name, value));
}

qint64 CFeatures::readInteger(const QByteArray &name) const
{
    CErrorGuard error;
    const qint64 value
        = arv_device_get_integer_feature_value(m_device, name.constData(), error.receive());
    if (error)
        throwError(error, readingOf(name), EReason::Unknown);
    return value;
}

void CFeatures::writeInteger(const QByteArray &name, qint64 value) const
{
    CErrorGuard error;
    arv_device_set_integer_feature_value(m_device, name.constData(), value, error.receive());
    if (error)
        throwError(error, writingOf(name, QString::number(value)));
}

void CFeatures::execute(const QByteArray &name) const
{
    ArvGcNode *const node = getNode(name);
    if (!ARV_IS_GC_COMMAND(node))
        throw CFeatureError(
            CErrorText::tr("its feature \"%1\" is not a command").arg(QString::fromUtf8(name)),
            EReason::Refused);
    CErrorGuard error;
    arv_gc_command_execute(ARV_GC_COMMAND(node), error.receive());
    if (error)
        throwError(error,
                   CErrorText::tr("its command \"%1\" could not be executed")
                       .arg(QString::fromUtf8(name)));
}

bool CFeatures::isDone(const QByteArray &name) const
{
    // A command that is being executed reads as the value that was written to start it.
    ArvGcNode *value = nullptr;
    gint64 commandValue = 1;
    ArvDomNode *const command = ARV_DOM_NODE(getNode(name, EReason::Unknown));
    for (ArvDomNode *child = arv_dom_node_get_first_child(command); child;
         child = arv_dom_node_get_next_sibling(child)) {
        if (!ARV_IS_GC_PROPERTY_NODE(child))
            continue;
        ArvGcPropertyNode *const property = ARV_GC_PROPERTY_NODE(child);
        CErrorGuard error;
        switch (arv_gc_property_node_get_node_type(property)) {
        case ARV_GC_PROPERTY_NODE_TYPE_P_VALUE:
            value = arv_gc_property_node_get_linked_node(property);
            break;
        case ARV_GC_PROPERTY_NODE_TYPE_COMMAND_VALUE:
        case ARV_GC_PROPERTY_NODE_TYPE_P_COMMAND_VALUE:
            commandValue = arv_gc_property_node_get_int64(property, error.receive());
            break;
        default:
            break;
        }
    }
    const bool tells = ARV_IS_GC_INTEGER(value) && ARV_IS_GC_FEATURE_NODE(value)
        && arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(value))
            != ARV_GC_ACCESS_MODE_WO;
    if (!tells)
        return true;
    CErrorGuard error;
    const gint64 current = arv_gc_integer_get_value(ARV_GC_INTEGER(value), error.receive());
    if (error)
        throwError(
            error,
            CErrorText::tr("it could not be found out whether its command \"%1\" has finished")
                .arg(QString::fromUtf8(name)),
            EReason::Unknown);
    return current != commandValue;
}

CFeatures::CRegister CFeatures::findRegister(const QByteArray &name) const
{
    ArvGcNode *const node = getNode(name);
    if (!ARV_IS_GC_REGISTER(node))
        throw CFeatureError(
            CErrorText::tr("its feature \"%1\" is not a register").arg(QString::fromUtf8(name)),
            EReason::Refused);
    CErrorGuard error;
    CRegister found;
    found.address = arv_gc_register_get_address(ARV_GC_REGISTER(node), error.receive());
    if (error)
        throwError(error, readingOf(name));
    found.length = arv_gc_register_get_length(ARV_GC_REGISTER(node), error.receive());
    if (error)
        throwError(error, readingOf(name));
    return found;
}

void CFeatures::writeMemory(quint64 address, QByteArray bytes) const
{
    // Whole words only; what fills them up lies behind what the camera is told to use.
    bytes.append((4 - bytes.size() % 4) % 4, '\0');
    CErrorGuard error;
    const bool isDone = arv_device_write_memory(
        m_device, address, static_cast<guint32>(bytes.size()), bytes.data(), error.receive());
    const CErrorText attempt = CErrorText::tr("its memory could not be written");
    if (error)
        throwError(error, attempt);
    // On USB it fails without a word where the command gets too long.
    if (!isDone)
        throw CFeatureError(attempt, EReason::Refused);
}

int CFeatures::getLongestWrite() const
{
    // On Ethernet the library makes several commands of what is too long for one.
    if (!ARV_IS_UV_DEVICE(m_device))
        return std::numeric_limits<int>::max();
    // Registers that each USB3 Vision camera has, little-endian.
    constexpr quint64 TECHNOLOGY_REGISTERS = 0x01D8;
    constexpr quint64 LONGEST_COMMAND = 0x14;
    constexpr quint32 HEADER_SIZE = 20; // with the address
    constexpr quint32 LONGEST_PAYLOAD = 0xffff; // as a header can tell it
    const auto read = [this](quint64 address, auto number) {
        CErrorGuard error;
        arv_device_read_memory(m_device, address, sizeof number, &number, error.receive());
        if (error)
            throwError(error, CErrorText::tr("its memory could not be read"), EReason::Unknown);
        return qFromLittleEndian(number);
    };
    const quint64 registers = read(TECHNOLOGY_REGISTERS, quint64(0));
    const quint32 longest
        = std::min(read(registers + LONGEST_COMMAND, quint32(0)), LONGEST_PAYLOAD);
    return static_cast<int>(longest > HEADER_SIZE + 4 ? (longest - HEADER_SIZE) / 4 * 4 : 4);
}

} // namespace Viewer::Camera::GenICam
