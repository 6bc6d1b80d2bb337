#include "camerasettingsview.h"

#include "featuretree.h"
#include "settingeditor.h"

#include "viewer/stream/camerastream.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Viewer::CameraSettings {

using Camera::CFeatureInfo;

namespace {

constexpr int REFRESH_INTERVAL = 2000; // milliseconds

/// So many features at a time do not keep the worker from its images.
constexpr int FEATURES_AT_A_TIME = 20;

struct CSetting
{
    const char *title;
    const char *name; ///< of the naming convention of features
    const char *olderName; ///< where cameras had another one before; may be null
};

constexpr const char *CONTEXT = "Viewer::CameraSettings::CCameraSettingsView";

const CSetting SETTINGS[] = {
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Exposure time:"),
     "ExposureTime", "ExposureTimeAbs"},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Gain:"), "Gain", "GainRaw"},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Frame rate:"),
     "AcquisitionFrameRate", "AcquisitionFrameRateAbs"},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Width:"), "Width", nullptr},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Height:"), "Height",
     nullptr},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Offset X:"), "OffsetX",
     nullptr},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Offset Y:"), "OffsetY",
     nullptr},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Pixel format:"),
     "PixelFormat", nullptr},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Trigger:"), "TriggerMode",
     nullptr},
    {QT_TRANSLATE_NOOP("Viewer::CameraSettings::CCameraSettingsView", "Test pattern:"),
     "TestPattern", "TestImageSelector"},
};

} // namespace

CCameraSettingsView::CCameraSettingsView(QWidget *parent)
    : QWidget(parent)
    , m_pages(new QStackedWidget(this))
    , m_form(new QFormLayout)
    , m_message(new QLabel(this))
    , m_tree(new CFeatureTree(this))
{
    setObjectName(QStringLiteral("cameraSettings"));
    auto *const hint = new QLabel(tr("Select a camera and click Start to see its settings."), this);
    hint->setObjectName(QStringLiteral("settingsHint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    m_message->setObjectName(QStringLiteral("settingsMessage"));
    // The camera may have a part in it.
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->hide();

    auto *const settings = new QWidget(this);
    auto *const layout = new QVBoxLayout(settings);
    layout->addWidget(m_message);
    layout->addLayout(m_form);
    layout->addWidget(m_tree, 1);
    m_pages->addWidget(hint);
    m_pages->addWidget(settings);
    auto *const pagesLayout = new QVBoxLayout(this);
    pagesLayout->setContentsMargins({});
    pagesLayout->addWidget(m_pages);

    m_timer.setInterval(REFRESH_INTERVAL);
    connect(&m_timer, &QTimer::timeout, this, &CCameraSettingsView::refresh);
}

CCameraSettingsView::~CCameraSettingsView() = default;

void CCameraSettingsView::setStream(Stream::CCameraStream *stream)
{
    if (stream == m_stream && stream)
        return;
    if (m_stream)
        m_stream->disconnect(this);
    onEnded();
    m_stream = stream;
    if (!stream)
        return;
    connect(stream, &Stream::CCameraStream::featuresRead, this,
            &CCameraSettingsView::onFeaturesRead);
    connect(stream, &Stream::CCameraStream::refused, this, &CCameraSettingsView::showMessage);
    connect(stream, &Stream::CCameraStream::ended, this, &CCameraSettingsView::onEnded);
    refresh();
}

void CCameraSettingsView::onEnded()
{
    m_stream.clear();
    m_openQuestions = 0;
    m_isFilled = false;
    showMessage({});
    m_pages->setCurrentIndex(0);
}

void CCameraSettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_timer.start();
    refresh();
}

void CCameraSettingsView::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void CCameraSettingsView::ask(const QStringList &names)
{
    ++m_openQuestions;
    m_stream->readFeatures(names);
}

void CCameraSettingsView::refresh()
{
    // Who answers slowly is not asked more often than it answers.
    if (!m_stream || !isVisible() || m_openQuestions > 0)
        return;
    QStringList names;
    if (m_isFilled) {
        for (const CSettingEditor *const editor : qAsConst(m_editors))
            names.append(editor->getName());
        names += m_tree->takeNextNames(FEATURES_AT_A_TIME);
        if (names.isEmpty())
            return;
    }
    ask(names);
}

void CCameraSettingsView::onEdited(const QString &name, const QString &value)
{
    if (!m_stream)
        return;
    showMessage({});
    m_stream->writeFeature(name, value);
    // What one setting is changes the limits of others. A refused one is shown as it was, too.
    QStringList names;
    for (const CSettingEditor *const editor : qAsConst(m_editors))
        names.append(editor->getName());
    ask(names);
}

void CCameraSettingsView::onFeaturesRead(const QVector<CFeatureInfo> &features)
{
    m_openQuestions = std::max(m_openQuestions - 1, 0);
    if (!m_isFilled) {
        m_isFilled = true;
        makeEditors(features);
        m_tree->setFeatures(features);
        m_pages->setCurrentIndex(1);
        return;
    }
    m_tree->update(features);
    // It was read before the user has changed something else.
    if (m_openQuestions > 0)
        return;
    for (CSettingEditor *const editor : qAsConst(m_editors)) {
        for (const CFeatureInfo &feature : features) {
            if (feature.name == editor->getName())
                editor->setFeature(feature);
        }
    }
}

void CCameraSettingsView::makeEditors(const QVector<CFeatureInfo> &features)
{
    m_editors.clear();
    while (m_form->rowCount() > 0)
        m_form->removeRow(0);
    for (const CSetting &setting : SETTINGS) {
        for (const char *const name : {setting.name, setting.olderName}) {
            const auto feature = std::find_if(
                features.cbegin(), features.cend(), [name](const CFeatureInfo &candidate) {
                    return name && candidate.name == QLatin1String(name)
                        && CSettingEditor::isEditable(candidate);
                });
            if (feature == features.cend())
                continue;
            auto *const editor = new CSettingEditor(*feature);
            connect(editor, &CSettingEditor::edited, this, &CCameraSettingsView::onEdited);
            connect(editor, &CSettingEditor::rejected, this, &CCameraSettingsView::showMessage);
            m_form->addRow(QCoreApplication::translate(CONTEXT, setting.title), editor);
            m_editors.append(editor);
            break;
        }
    }
}

void CCameraSettingsView::showMessage(const QString &text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

} // namespace Viewer::CameraSettings
