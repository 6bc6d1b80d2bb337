#include "featurelist.h"

#include "glibpointers.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace Viewer::Camera::GenICam {

namespace {

/// More than any camera has, and what a description that leads back to itself ends at.
constexpr int MAXIMUM_COUNT = 5000;
constexpr int MAXIMUM_DEPTH = 8;

using EKind = CFeatureInfo::EKind;

EKind getKind(ArvGcNode *node)
{
    // An enumeration is an integer as well.
    if (ARV_IS_GC_COMMAND(node))
        return EKind::Command;
    if (ARV_IS_GC_ENUMERATION(node))
        return EKind::Enumeration;
    if (ARV_IS_GC_BOOLEAN(node))
        return EKind::Boolean;
    if (ARV_IS_GC_FLOAT(node))
        return EKind::Float;
    if (ARV_IS_GC_INTEGER(node))
        return EKind::Integer;
    if (ARV_IS_GC_STRING(node))
        return EKind::Text;
    return EKind::Other;
}

double toFinite(double value)
{
    return std::isfinite(value) ? value : 0;
}

void readLimits(ArvGcNode *node, CFeatureInfo &info)
{
    CErrorGuard minimumError;
    CErrorGuard maximumError;
    CErrorGuard incrementError;
    if (info.kind == EKind::Integer) {
        ArvGcInteger *const integer = ARV_GC_INTEGER(node);
        info.integerMinimum = arv_gc_integer_get_min(integer, minimumError.receive());
        info.integerMaximum = arv_gc_integer_get_max(integer, maximumError.receive());
        info.integerIncrement
            = std::max<qint64>(arv_gc_integer_get_inc(integer, incrementError.receive()), 1);
        info.unit = QString::fromUtf8(arv_gc_integer_get_unit(integer));
    } else if (info.kind == EKind::Float) {
        ArvGcFloat *const number = ARV_GC_FLOAT(node);
        info.minimum = toFinite(arv_gc_float_get_min(number, minimumError.receive()));
        info.maximum = toFinite(arv_gc_float_get_max(number, maximumError.receive()));
        // The library says the smallest number that there is where the camera says nothing.
        const double increment = arv_gc_float_get_inc(number, incrementError.receive());
        info.increment = std::isnormal(increment) && increment > 1e-30 ? increment : 0;
        info.unit = QString::fromUtf8(arv_gc_float_get_unit(number));
    }
}

QStringList readChoices(ArvGcEnumeration *node)
{
    CErrorGuard error;
    guint count = 0;
    const char **const values
        = arv_gc_enumeration_dup_available_string_values(node, &count, error.receive());
    QStringList choices;
    for (guint i = 0; values && i < count; ++i)
        choices.append(QString::fromUtf8(values[i]));
    g_free(values);
    return choices;
}

/// Those that the naming convention of features has cameras lock while they stream, by
/// TLParamsLocked or by themselves: memory has been given for images of one size.
bool isLockedWhileStreaming(const QString &name)
{
    static const QSet<QString> NAMES{QStringLiteral("Width"), QStringLiteral("Height"),
                                     QStringLiteral("OffsetX"), QStringLiteral("OffsetY"),
                                     QStringLiteral("PixelFormat")};
    return NAMES.contains(name);
}

QString readValue(ArvGcFeatureNode *feature, CFeatureInfo::EKind kind, CErrorGuard &error)
{
    // The library makes a text of six digits of it.
    if (kind == EKind::Float) {
        const double value = arv_gc_float_get_value(ARV_GC_FLOAT(feature), error.receive());
        return error ? QString() : CFeatureInfo::toText(value);
    }
    const char *const value = arv_gc_feature_node_get_value_as_string(feature, error.receive());
    return error ? QString() : QString::fromUtf8(value);
}

CFeatureInfo describe(ArvGcFeatureNode *feature, const QString &category, bool isStreaming)
{
    ArvGcNode *const node = ARV_GC_NODE(feature);
    CFeatureInfo info;
    info.name = QString::fromUtf8(arv_gc_feature_node_get_name(feature));
    info.displayName = QString::fromUtf8(arv_gc_feature_node_get_display_name(feature));
    info.category = category;
    info.kind = getKind(node);
    CErrorGuard availableError;
    CErrorGuard lockedError;
    const bool isAvailable = arv_gc_feature_node_is_available(feature, availableError.receive());
    const ArvGcAccessMode mode = arv_gc_feature_node_get_actual_access_mode(feature);
    const bool isLocked = arv_gc_feature_node_is_locked(feature, lockedError.receive());
    info.isWritable = isAvailable && !isLocked && mode != ARV_GC_ACCESS_MODE_RO;
    info.isLockedByImages = isStreaming && isAvailable && isLocked && mode != ARV_GC_ACCESS_MODE_RO
        && isLockedWhileStreaming(info.name);
    info.isReadable = isAvailable && mode != ARV_GC_ACCESS_MODE_WO && info.kind != EKind::Command
        && info.kind != EKind::Other;
    if (!isAvailable)
        return info;
    if (info.isReadable) {
        CErrorGuard error;
        info.value = readValue(feature, info.kind, error);
        info.isReadable = !error;
    }
    readLimits(node, info);
    if (info.kind == EKind::Enumeration)
        info.choices = readChoices(ARV_GC_ENUMERATION(node));
    return info;
}

class CTreeReader
{
public:
    CTreeReader(ArvDevice *device, bool isStreaming, const std::function<void()> &pause)
        : m_device(device)
        , m_isStreaming(isStreaming)
        , m_pause(pause)
    {
    }

    void read(const char *categoryName, const QString &path, int depth)
    {
        ArvGcNode *const node = arv_device_get_feature(m_device, categoryName);
        if (!ARV_IS_GC_CATEGORY(node) || depth > MAXIMUM_DEPTH)
            return;
        for (const GSList *entry = arv_gc_category_get_features(ARV_GC_CATEGORY(node)); entry;
             entry = entry->next) {
            const auto *const name = static_cast<const char *>(entry->data);
            ArvGcNode *const child = arv_device_get_feature(m_device, name);
            const QString text = QString::fromUtf8(name);
            if (m_seen.contains(text) || m_features.size() >= MAXIMUM_COUNT)
                continue;
            m_seen.insert(text);
            m_pause();
            if (ARV_IS_GC_CATEGORY(child))
                read(name, path.isEmpty() ? text : path + QStringLiteral(" / ") + text, depth + 1);
            else if (ARV_IS_GC_FEATURE_NODE(child))
                m_features.append(describe(ARV_GC_FEATURE_NODE(child), path, m_isStreaming));
        }
    }

    [[nodiscard]] const QVector<CFeatureInfo> &getFeatures() const { return m_features; }

private:
    ArvDevice *const m_device;
    const bool m_isStreaming;
    const std::function<void()> &m_pause;
    QSet<QString> m_seen;
    QVector<CFeatureInfo> m_features;
};

} // namespace

QVector<CFeatureInfo> listFeatures(ArvDevice *device, const QStringList &names, bool isStreaming,
                                   const std::function<void()> &pause)
{
    if (names.isEmpty()) {
        CTreeReader reader(device, isStreaming, pause);
        reader.read("Root", {}, 0);
        return reader.getFeatures();
    }
    QVector<CFeatureInfo> features;
    for (const QString &name : names) {
        pause();
        ArvGcNode *const node = arv_device_get_feature(device, name.toUtf8().constData());
        if (ARV_IS_GC_FEATURE_NODE(node) && !ARV_IS_GC_CATEGORY(node))
            features.append(describe(ARV_GC_FEATURE_NODE(node), {}, isStreaming));
    }
    return features;
}

} // namespace Viewer::Camera::GenICam
