#pragma once

#include "viewer/camera/featureinfo.h"

#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

class QFormLayout;
class QLabel;
class QStackedWidget;

namespace Viewer::Stream {
class CCameraStream;
}

namespace Viewer::CameraSettings {

class CFeatureTree;
class CSettingEditor;

/// The settings of one camera that acquires: those that are changed here, each where the camera has
/// it, and all others to look at. Asks the camera while it is visible, and writes to it when the
/// user changes something, never else.
class CCameraSettingsView : public QWidget
{
    Q_OBJECT

public:
    explicit CCameraSettingsView(QWidget *parent = nullptr);
    ~CCameraSettingsView() override;

    /// Shows the camera of @p stream, which is borrowed and may end; null: none.
    void setStream(Stream::CCameraStream *stream);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void ask(const QStringList &names);
    void refresh();
    void onFeaturesRead(const QVector<Camera::CFeatureInfo> &features);
    void onEdited(const QString &name, const QString &value);
    void onEnded();
    void makeEditors(const QVector<Camera::CFeatureInfo> &features);
    void showMessage(const QString &text);

    QPointer<Stream::CCameraStream> m_stream;
    QStackedWidget *const m_pages;
    QFormLayout *const m_form;
    QLabel *const m_message;
    CFeatureTree *const m_tree;
    QVector<CSettingEditor *> m_editors; ///< children
    QTimer m_timer;
    int m_openQuestions = 0;
    bool m_isFilled = false; ///< it is known which features there are
};

} // namespace Viewer::CameraSettings
