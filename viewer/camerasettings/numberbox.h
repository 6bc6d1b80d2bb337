#pragma once

#include "viewer/camera/featureinfo.h"

#include <QAbstractSpinBox>

namespace Viewer::CameraSettings {

/// A number of a camera, whole ones of 64 bits without a loss. It changes by Enter, by leaving it
/// and by its arrows, never by the wheel, which is meant for what it lies on.
class CNumberBox : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit CNumberBox(QWidget *parent = nullptr);

    /// Shows the value of @p feature, an integer or a float, unless the user is typing one. Emits
    /// nothing.
    void setFeature(const Camera::CFeatureInfo &feature);

    /// Back to the camera's value.
    void reset();

    void stepBy(int steps) override;

    /// Whether limits of @p feature can be believed and shown.
    [[nodiscard]] static bool hasLimits(const Camera::CFeatureInfo &feature);
    [[nodiscard]] static QString getMinimum(const Camera::CFeatureInfo &feature);
    [[nodiscard]] static QString getMaximum(const Camera::CFeatureInfo &feature);

signals:
    /// The user wants another @p value, which is within the limits and has the increment.
    void edited(const QString &value);

    /// What the user has typed is no such value; the camera's one is shown again.
    void rejected(const QString &text);

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void commit();
    [[nodiscard]] bool isInteger() const;
    /// What the camera can take that is nearest to @p text; empty: it is nothing for it.
    [[nodiscard]] QString findValue(const QString &text) const;
    [[nodiscard]] QString stepInteger(qint64 value, int steps) const;
    [[nodiscard]] QString stepFloat(double value, int steps) const;

    Camera::CFeatureInfo m_feature;
    bool m_isTyped = false; ///< something that is not the camera's value yet
};

} // namespace Viewer::CameraSettings
