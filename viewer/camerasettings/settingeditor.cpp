#include "settingeditor.h"

#include "numberbox.h"

#include "viewer/text/visibletext.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace Viewer::CameraSettings {

using Camera::CFeatureInfo;

static constexpr int UNIT_LENGTH = 12; // characters

CSettingEditor::CSettingEditor(const CFeatureInfo &feature, QWidget *parent)
    : QWidget(parent)
    , m_feature(feature)
{
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    if (feature.kind == CFeatureInfo::EKind::Enumeration) {
        m_choices = new QComboBox(this);
        m_choices->setObjectName(feature.name);
        m_choices->setFocusPolicy(Qt::StrongFocus);
        m_choices->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_choices->setMinimumContentsLength(UNIT_LENGTH);
        m_choices->installEventFilter(this);
        layout->addWidget(m_choices, 1);
        setFocusProxy(m_choices);
        connect(m_choices, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
            const QString value = m_choices->itemData(index).toString();
            if (value != m_feature.value)
                emit edited(m_feature.name, value);
        });
    } else {
        m_number = new CNumberBox(this);
        m_number->setObjectName(feature.name);
        m_limits = new QLabel(this);
        m_limits->setObjectName(feature.name + QStringLiteral("Limits"));
        m_limits->setTextFormat(Qt::PlainText);
        layout->addWidget(m_number, 1);
        layout->addWidget(m_limits, 1);
        setFocusProxy(m_number);
        connect(m_number, &CNumberBox::edited, this,
                [this](const QString &value) { emit edited(m_feature.name, value); });
        connect(m_number, &CNumberBox::rejected, this, &CSettingEditor::reject);
    }
    setFeature(feature);
}

bool CSettingEditor::isEditable(const CFeatureInfo &feature)
{
    using EKind = CFeatureInfo::EKind;
    return feature.kind == EKind::Integer || feature.kind == EKind::Float
        || feature.kind == EKind::Enumeration;
}

const QString &CSettingEditor::getName() const
{
    return m_feature.name;
}

void CSettingEditor::setFeature(const CFeatureInfo &feature)
{
    const bool isEnumeration = feature.kind == CFeatureInfo::EKind::Enumeration;
    if (!isEditable(feature) || isEnumeration != (m_choices != nullptr))
        return;
    m_feature = feature;
    setEnabled(feature.isWritable || feature.isLockedByImages);
    if (m_choices) {
        setChoices(feature);
        return;
    }
    m_number->setFeature(feature);
    const QString unit = Text::shorten(feature.unit, UNIT_LENGTH);
    const QString limits = CNumberBox::hasLimits(feature)
        ? tr("%1 to %2").arg(CNumberBox::getMinimum(feature), CNumberBox::getMaximum(feature))
        : QString();
    m_limits->setText((limits + QLatin1Char(' ') + unit).trimmed());
}

void CSettingEditor::setChoices(const CFeatureInfo &feature)
{
    // Nobody looks for something in a list that changes.
    if (m_choices->view()->isVisible())
        return;
    QStringList values = feature.choices;
    if (feature.isReadable && !values.contains(feature.value))
        values.append(feature.value);
    QStringList shown;
    for (int i = 0; i < m_choices->count(); ++i)
        shown.append(m_choices->itemData(i).toString());
    if (shown != values) {
        m_choices->clear();
        for (const QString &value : qAsConst(values))
            m_choices->addItem(Text::shorten(value), value);
    }
    m_choices->setCurrentIndex(feature.isReadable ? values.indexOf(feature.value) : -1);
}

void CSettingEditor::reject(const QString &value)
{
    emit rejected(
        CNumberBox::hasLimits(m_feature)
            ? tr("\"%1\" is not possible: %2 goes from %3 to %4.")
                  .arg(Text::shorten(value), m_feature.name, CNumberBox::getMinimum(m_feature),
                       CNumberBox::getMaximum(m_feature))
            : tr("\"%1\" is no number for %2.").arg(Text::shorten(value), m_feature.name));
}

bool CSettingEditor::eventFilter(QObject *object, QEvent *event)
{
    // The wheel is meant for what the list lies on.
    if (object == m_choices && event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(object, event);
}

} // namespace Viewer::CameraSettings
