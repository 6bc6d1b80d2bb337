#include "streamevent.h"

#include "streamtask.h"

#include "viewer/process/cborinteger.h"

#include <QCborArray>

#include <limits>

namespace Viewer::Stream {

using Camera::CFeatureInfo;
using Camera::CFrameInfo;
using Camera::CStreamStatistics;
using Process::toInteger;

namespace {

const QString PROTOCOL = QStringLiteral("protocol");
const QString TYPE = QStringLiteral("event");
const QString DESCRIPTOR = QStringLiteral("descriptor");
const QString SLOT_COUNT = QStringLiteral("slots");
const QString SLOT_SIZE = QStringLiteral("slotSize");
const QString SKIPPED = QStringLiteral("skipped");
const QString FEATURES = QStringLiteral("features");
const QString IS_LAST = QStringLiteral("last");
const QString ERROR_TEXT = QStringLiteral("error");
const QString LOCALIZED_ERROR = QStringLiteral("localizedError");
const QString IN_USE = QStringLiteral("inUse");

struct CStatisticsField
{
    QString name;
    qint64 CStreamStatistics::*member;
};

const CStatisticsField STATISTICS_FIELDS[]
    = {{QStringLiteral("frames"), &CStreamStatistics::frames},
       {QStringLiteral("bytes"), &CStreamStatistics::bytes},
       {QStringLiteral("incomplete"), &CStreamStatistics::incompleteFrames},
       {QStringLiteral("resent"), &CStreamStatistics::resentPackets},
       {QStringLiteral("lost"), &CStreamStatistics::lostPackets}};

struct CFrameField
{
    QString name;
    int CFrameInfo::*member;
};

const CFrameField FRAME_FIELDS[] = {{QStringLiteral("slot"), &CFrameInfo::slot},
                                    {QStringLiteral("width"), &CFrameInfo::width},
                                    {QStringLiteral("height"), &CFrameInfo::height},
                                    {QStringLiteral("padding"), &CFrameInfo::linePadding}};
const QString PIXEL_FORMAT = QStringLiteral("format");
const QString SIZE = QStringLiteral("size");
const QString NUMBER = QStringLiteral("number");
const QString TIMESTAMP = QStringLiteral("time");

/// False: it is no whole number of this type that is not negative.
template <typename T>
bool take(const QCborMap &map, const QString &name, T &target)
{
    const qint64 value = toInteger(map.value(name), -1);
    if (value < 0 || static_cast<quint64>(value) > std::numeric_limits<T>::max())
        return false;
    target = static_cast<T>(value);
    return true;
}

bool takeFrame(const QCborMap &map, CFrameInfo &frame)
{
    for (const CFrameField &field : FRAME_FIELDS) {
        if (!take(map, field.name, frame.*field.member))
            return false;
    }
    return take(map, PIXEL_FORMAT, frame.pixelFormat) && take(map, SIZE, frame.size)
        && take(map, NUMBER, frame.number) && take(map, TIMESTAMP, frame.timestamp);
}

bool takeStatistics(const QCborMap &map, CStreamStatistics &statistics)
{
    for (const CStatisticsField &field : STATISTICS_FIELDS) {
        if (!take(map, field.name, statistics.*field.member))
            return false;
    }
    return true;
}

bool takeFeatures(const QCborMap &map, QVector<CFeatureInfo> &features)
{
    for (const QCborValue entry : map.value(FEATURES).toArray()) {
        const std::optional<CFeatureInfo> feature = CFeatureInfo::fromCbor(entry.toMap());
        if (!feature)
            return false;
        features.append(*feature);
    }
    return true;
}

} // namespace

QCborMap CStreamEvent::toCbor() const
{
    QCborMap map{{TYPE, static_cast<int>(type)}};
    switch (type) {
    case EType::Hello:
        map.insert(PROTOCOL, CStreamTask::PROTOCOL);
        break;
    case EType::Opened:
    case EType::Stopped:
        break;
    case EType::Started:
        map.insert(DESCRIPTOR, descriptor);
        map.insert(SLOT_COUNT, slotCount);
        map.insert(SLOT_SIZE, slotSize);
        break;
    case EType::Frame:
        for (const CFrameField &field : FRAME_FIELDS)
            map.insert(field.name, frame.*field.member);
        map.insert(PIXEL_FORMAT, static_cast<qint64>(frame.pixelFormat));
        map.insert(SIZE, frame.size);
        map.insert(NUMBER, static_cast<qint64>(frame.number));
        map.insert(TIMESTAMP, frame.timestamp);
        break;
    case EType::Statistics:
        for (const CStatisticsField &field : STATISTICS_FIELDS)
            map.insert(field.name, statistics.*field.member);
        map.insert(SKIPPED, skippedFrames);
        break;
    case EType::Features: {
        QCborArray array;
        for (const CFeatureInfo &feature : features)
            array.append(feature.toCbor());
        map.insert(FEATURES, array);
        map.insert(IS_LAST, isLast);
        break;
    }
    case EType::Refused:
    case EType::Failed:
        map.insert(ERROR_TEXT, error.getEnglish());
        map.insert(LOCALIZED_ERROR, error.getLocalized());
        map.insert(IN_USE, isInUse);
        break;
    }
    return map;
}

std::optional<CStreamEvent> CStreamEvent::fromCbor(const QCborMap &map)
{
    const qint64 type = toInteger(map.value(TYPE), -1);
    if (type < 0 || type > static_cast<int>(EType::Failed))
        return std::nullopt;
    CStreamEvent event;
    event.type = static_cast<EType>(type);
    bool isGood = true;
    switch (event.type) {
    case EType::Hello:
        isGood = toInteger(map.value(PROTOCOL), -1) == CStreamTask::PROTOCOL;
        break;
    case EType::Opened:
    case EType::Stopped:
        break;
    case EType::Started:
        isGood = take(map, DESCRIPTOR, event.descriptor) && take(map, SLOT_COUNT, event.slotCount)
            && take(map, SLOT_SIZE, event.slotSize);
        break;
    case EType::Frame:
        isGood = takeFrame(map, event.frame);
        break;
    case EType::Statistics:
        isGood = takeStatistics(map, event.statistics) && take(map, SKIPPED, event.skippedFrames);
        break;
    case EType::Features:
        isGood = takeFeatures(map, event.features);
        event.isLast = map.value(IS_LAST).toBool(true);
        break;
    case EType::Refused:
    case EType::Failed:
        event.error = Text::CErrorText::fromBoth(map.value(ERROR_TEXT).toString(),
                                                 map.value(LOCALIZED_ERROR).toString());
        event.isInUse = map.value(IN_USE).toBool();
        isGood = !event.error.isEmpty();
        break;
    }
    return isGood ? std::optional(event) : std::nullopt;
}

} // namespace Viewer::Stream
