#include "updatedialogbase.h"

#include "linklabel.h"
#include "model/firmwareupdatetreemodel.h"
#include "readablepalette.h"
#include "style/focusstyle.h"
#include "style/iconstyle.h"
#include "surplusitem.h"
#include "treeviewheaderview.h"
#include "view/delegate/cellrendering.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWindow>

namespace Plugin::FirmwareUpdater::Internal::View {

using Entity::CFirmwareUpdateEntity;

/// What a window manager's frame may add to a dialog. The true size is only known once a window is
/// on the screen.
static constexpr QSize FRAME_SIZE(10, 40);

/// Gaps up to this height hold rows apart that belong together, and stay on small screens, too.
static constexpr int ROW_GAP = 16;

/// Room between a control and the frame that the page draws around it.
static constexpr QMargins FRAME_MARGINS(3, 3, 3, 3);

/// Whether @p control frames a part of itself when it has the focus: a button its text, a text its
/// link, a tree its row. Around others the page does it.
static bool showsFocus(const QWidget &control)
{
    if (const auto *const view = qobject_cast<const QAbstractItemView *>(&control))
        return view->currentIndex().isValid();
    return qobject_cast<const QAbstractButton *>(&control)
        || qobject_cast<const QLabel *>(&control);
}

CUpdateDialogBase::CUpdateDialogBase(QWidget *parent)
    : QDialog(parent,
              Qt::Window | Qt::WindowMaximizeButtonHint | Qt::CustomizeWindowHint
                  | Qt::WindowCloseButtonHint)
    , m_focusStyle(new Style::CFocusStyle(this))
{
}

CUpdateDialogBase::~CUpdateDialogBase() = default;

QSharedPointer<Model::CFirmwareUpdateTreeModel> CUpdateDialogBase::getModel() const
{
    return m_model;
}

void CUpdateDialogBase::setModel(QSharedPointer<Model::CFirmwareUpdateTreeModel> model)
{
    m_model = std::move(model);
}

void CUpdateDialogBase::reject()
{
    emit closeClicked();
}

void CUpdateDialogBase::initializeFrame(const QLabel *title, QVBoxLayout *content,
                                        QDialogButtonBox *buttonBox)
{
    m_content = content;
    for (int i = 0; i < content->count(); ++i) {
        QSpacerItem *gap = content->itemAt(i)->spacerItem();
        if (gap && !(gap->expandingDirections() & Qt::Vertical)
            && gap->sizeHint().height() > ROW_GAP) {
            m_gaps.append(gap);
            m_designGapHeights.append(gap->sizeHint().height());
        }
    }
    m_designMinimumSize = minimumSize();
    fitScreen();

    m_buttonBox = buttonBox;
    setAccessibleDescription(title->text());
    connect(buttonBox, &QDialogButtonBox::clicked, this, &CUpdateDialogBase::dialogButtonClicked);

    // Leaving must be a decision: while Next is unavailable, Enter does nothing.
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        if (auto *pushButton = qobject_cast<QPushButton *>(button)) {
            pushButton->setAutoDefault(false);
            // Back and Next have no icon either.
            pushButton->setIcon({});
        }
    }
    const QList<QPushButton *> pushButtons = findChildren<QPushButton *>();
    for (QPushButton *pushButton : pushButtons)
        pushButton->setStyle(m_focusStyle);
    const QList<CLinkLabel *> labels = findChildren<CLinkLabel *>();
    for (CLinkLabel *label : labels) {
        label->setStyle(m_focusStyle);
        showTextWithLinks(label, label->text());
    }
    // The page draws frames around some of its controls.
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });

    QPalette readable = palette();
    setReadableColors(readable);
    setPalette(readable);
    // A widget with a style sheet of its own inherits no palette, nor do its children.
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!widget->styleSheet().isEmpty()) {
            widget->setPalette(readable);
            const QList<QWidget *> children = widget->findChildren<QWidget *>();
            for (QWidget *child : children)
                child->setPalette(readable);
        }
    }
}

void CUpdateDialogBase::initializeCameraTree(QTreeView *treeView)
{
    m_treeView = treeView;
    treeView->setAccessibleName(QObject::tr("Cameras"));
    treeView->setModel(nullptr);
    // Cells draw their texts in this size anyway. A larger one, as of the desktop, would only make
    // those without a height of their own ask for more than their row has.
    setCellFont(treeView);
    const int index = m_content->indexOf(treeView);
    delete m_content->takeAt(index);
    m_content->insertItem(index, new CSurplusItem(treeView, m_designMinimumSize.height()));
    treeView->setHeader(new CTreeViewHeaderView);
}

QPushButton *CUpdateDialogBase::addBackAndNextButtons(const QString &backText,
                                                      const QString &nextText)
{
    m_backButton = addButton(backText, QDialogButtonBox::AcceptRole);
    m_backButton->setAutoDefault(false);
    QPushButton *nextButton = addButton(nextText, QDialogButtonBox::DestructiveRole);
    setDefaultButton(nextButton, true);
    return nextButton;
}

QPushButton *CUpdateDialogBase::addNextButton(const QString &text)
{
    QPushButton *nextButton = addButton(text, QDialogButtonBox::AcceptRole);
    setDefaultButton(nextButton, true);
    return nextButton;
}

QPushButton *CUpdateDialogBase::addButton(const QString &text, QDialogButtonBox::ButtonRole role)
{
    QPushButton *button = m_buttonBox->addButton(text, role);
    button->setStyle(m_focusStyle);
    return button;
}

CUpdateDialogBase::EButton CUpdateDialogBase::getButton(QAbstractButton *button) const
{
    if (!button)
        return EButton::None;
    switch (m_buttonBox->buttonRole(button)) {
    case QDialogButtonBox::RejectRole:
        return EButton::Close;
    case QDialogButtonBox::AcceptRole:
        return m_backButton ? EButton::Back : EButton::Next;
    case QDialogButtonBox::DestructiveRole:
        return m_backButton ? EButton::Next : EButton::None;
    default:
        return EButton::None;
    }
}

void CUpdateDialogBase::setDefaultButton(QPushButton *button, bool isDefault)
{
    button->setDefault(isDefault);
    m_defaultButton = isDefault ? button : nullptr;
}

void CUpdateDialogBase::enableDefaultButton(QPushButton *button, bool enable)
{
    button->setEnabled(enable);
    setDefaultButton(button, enable);
}

void CUpdateDialogBase::showColumns(QAbstractItemModel *model, const QVector<CTreeColumn> &columns)
{
    m_columns = columns;
    m_treeView->setModel(model);
    for (int column = 0; column < CFirmwareUpdateEntity::COLUMN_COUNT; ++column)
        m_treeView->setColumnHidden(column, true);
    for (const CTreeColumn &column : columns) {
        m_treeView->setColumnHidden(column.column, false);
        m_treeView->setColumnWidth(column.column, column.designWidth);
    }
}

void CUpdateDialogBase::setIcon(QLabel *label, EIcon icon)
{
    switch (icon) {
    case EIcon::Info:
        Style::CIconStyle::setIcon(label, QStringLiteral("info_icon_24x24_en"));
        label->setAccessibleName(tr("Information"));
        break;
    case EIcon::Warning:
        Style::CIconStyle::setIcon(label, QStringLiteral("warning_icon_24x24_en"));
        label->setAccessibleName(tr("Warning"));
        break;
    case EIcon::Error:
        Style::CIconStyle::setIcon(label, QStringLiteral("error_icon_24x24_en"));
        label->setAccessibleName(tr("Error"));
        break;
    }
}

bool CUpdateDialogBase::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && windowHandle()) {
        // Qt looks at the frame when the window moves, which on its way to the screen can be before
        // the window manager has made one. An active window has its frame.
        QMoveEvent look(windowHandle()->position(), windowHandle()->position());
        QCoreApplication::sendEvent(windowHandle(), &look);
    }
    return QDialog::event(event);
}

void CUpdateDialogBase::keyPressEvent(QKeyEvent *event)
{
    // Enter held down on one page must not go on to click buttons of the next, Cancel among them.
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->isAutoRepeat())
        event->ignore();
    else
        QDialog::keyPressEvent(event);
}

void CUpdateDialogBase::closeEvent(QCloseEvent *event)
{
    event->ignore();
    emit closeClicked();
}

void CUpdateDialogBase::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        fitScreen();
    QDialog::showEvent(event);
    // A button box that is shown without a default button chooses one: Back, or a Next that is
    // unavailable.
    const QList<QAbstractButton *> buttons = m_buttonBox->buttons();
    for (QAbstractButton *button : buttons)
        if (auto *pushButton = qobject_cast<QPushButton *>(button))
            pushButton->setDefault(pushButton == m_defaultButton);
    // A window that is not on the screen has no frame, so that it would get its own corner where
    // that of its frame belongs, and wander by a title bar each time that it is shown.
    if (!event->spontaneous() && !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        windowHandle()->setFramePosition(pos());
    // The row of buttons of Qt 6 hands the focus to its first button, but comes after it in the
    // order of Tab: the last buttons would never be reached.
    m_buttonBox->setFocusProxy(nullptr);
    if (!event->spontaneous())
        focusFirstControl();
}

void CUpdateDialogBase::focusFirstControl()
{
    // Also when the page comes back, to the button with which it was left.
    QWidget *control = nextInFocusChain();
    while (control != this
           && (!(control->focusPolicy() & Qt::TabFocus) || !control->isVisible()
               || !control->isEnabled()))
        control = control->nextInFocusChain();
    control->setFocus();
}

void CUpdateDialogBase::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    fitGaps();
    // The layout must ask the tree again for the height that it wants, and spacers, which do not
    // tell it of a new size.
    m_content->invalidate();
    layout()->activate();
    if (!m_columns.isEmpty())
        fitColumns();
}

void CUpdateDialogBase::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    const QWidget *const control = focusWidget();
    if (!control || !control->hasFocus() || !testAttribute(Qt::WA_KeyboardFocusChange)
        || showsFocus(*control))
        return;
    QPainter painter(this);
    const QRect place(control->mapTo(this, QPoint()), control->size());
    Style::CFocusStyle::drawFrame(&painter, place + FRAME_MARGINS, palette());
}

void CUpdateDialogBase::fitColumns()
{
    const auto treeWidth = static_cast<float>(m_treeView->width());
    // The last column takes what the others leave, so that no pixel is lost to rounding.
    int remainder = m_treeView->width();
    for (int i = 0; i < m_columns.size() - 1; ++i) {
        const auto designWidth = static_cast<float>(m_columns.at(i).designWidth);
        const int width = static_cast<int>(treeWidth * designWidth / DEFAULT_TREE_VIEW_WIDTH);
        m_treeView->setColumnWidth(m_columns.at(i).column, width);
        remainder -= width;
    }
    m_treeView->setColumnWidth(m_columns.last().column, remainder);
}

void CUpdateDialogBase::fitScreen()
{
    const bool isSmallest = size() == minimumSize();
    setMinimumSize(m_designMinimumSize.boundedTo(screen()->availableSize() - FRAME_SIZE));
    if (isSmallest)
        resize(minimumSize());
}

void CUpdateDialogBase::fitGaps()
{
    const bool isCompact = height() < m_designMinimumSize.height();
    if (m_isCompact == isCompact)
        return;
    m_isCompact = isCompact;
    for (int i = 0; i < m_gaps.size(); ++i) {
        const int designHeight = m_designGapHeights.at(i);
        m_gaps.at(i)->changeSize(m_gaps.at(i)->sizeHint().width(),
                                 isCompact ? designHeight / 2 : designHeight, QSizePolicy::Minimum,
                                 QSizePolicy::Fixed);
    }
}

} // namespace Plugin::FirmwareUpdater::Internal::View
