#include "cameraselectorpanel.h"

#include "cameraselectormodel.h"
#include "cameraselectorview.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Viewer::CameraSelector {

CCameraSelectorPanel::CCameraSelectorPanel(CCameraSelectorView *view, QWidget *parent)
    : QWidget(parent)
    , m_view(view)
    , m_filterEdit(new QLineEdit(this))
    , m_countLabel(new QLabel(this))
{
    m_filterEdit->setObjectName(QStringLiteral("cameraFilter"));
    m_filterEdit->setPlaceholderText(tr("Filter cameras"));
    m_filterEdit->setAccessibleName(tr("Filter cameras"));
    m_filterEdit->setClearButtonEnabled(true);
    m_filterEdit->installEventFilter(this);
    // A file is dropped onto the window as a whole.
    m_filterEdit->setAcceptDrops(false);
    m_countLabel->setObjectName(QStringLiteral("cameraFilterCount"));
    m_countLabel->hide();
    auto *const row = new QHBoxLayout;
    row->addWidget(m_filterEdit, 1);
    row->addWidget(m_countLabel);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(row);
    layout->addWidget(m_view, 1);
    setFocusProxy(m_view);
    connect(m_filterEdit, &QLineEdit::textChanged, m_view, &CCameraSelectorView::setFilter);
    connect(m_view, &CCameraSelectorView::filterChanged, m_filterEdit, &QLineEdit::setText);
    connect(m_view, &CCameraSelectorView::shownChanged, this, &CCameraSelectorPanel::showCount);
}

CCameraSelectorPanel::~CCameraSelectorPanel() = default;

void CCameraSelectorPanel::beginFilter()
{
    m_filterEdit->setFocus(Qt::ShortcutFocusReason);
    m_filterEdit->selectAll();
}

bool CCameraSelectorPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<const QKeyEvent *>(event)->key()) {
    case Qt::Key_Escape:
        if (m_filterEdit->text().isEmpty())
            m_view->setFocus(Qt::OtherFocusReason);
        m_filterEdit->clear();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        m_view->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void CCameraSelectorPanel::showCount()
{
    m_countLabel->setText(
        tr("%1 of %2").arg(m_view->getShownCount()).arg(m_view->getModel()->getCameraCount()));
    m_countLabel->setVisible(!m_filterEdit->text().isEmpty());
}

} // namespace Viewer::CameraSelector
