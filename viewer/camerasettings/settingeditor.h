#pragma once

#include "viewer/camera/featureinfo.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace Viewer::CameraSettings {

class CNumberBox;

/// One setting of a camera: a number with its unit and limits, or a choice. Whatever the camera
/// says is shown as plain text on one line. Only the user makes it emit something.
class CSettingEditor : public QWidget
{
    Q_OBJECT

public:
    /// @p feature isEditable().
    explicit CSettingEditor(const Camera::CFeatureInfo &feature, QWidget *parent = nullptr);

    void setFeature(const Camera::CFeatureInfo &feature);
    [[nodiscard]] const QString &getName() const;

    /// Whether there is an editor for @p feature.
    [[nodiscard]] static bool isEditable(const Camera::CFeatureInfo &feature);

signals:
    void edited(const QString &name, const QString &value);

    /// @p sentence: why what the user has typed is no value.
    void rejected(const QString &sentence);

private:
    bool eventFilter(QObject *object, QEvent *event) override;
    void setChoices(const Camera::CFeatureInfo &feature);
    void reject(const QString &value);

    Camera::CFeatureInfo m_feature;
    CNumberBox *m_number = nullptr; ///< of a number
    QLabel *m_limits = nullptr; ///< the same
    QComboBox *m_choices = nullptr; ///< of an enumeration
};

} // namespace Viewer::CameraSettings
