#include "listframe.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace Viewer::AppCore {

CListFrame::CListFrame(const QString &title, QTreeView *view, QWidget *parent)
    : QDialog(parent)
    , m_view(view)
    , m_hintLabel(new QLabel(this))
    , m_detailsLabel(new QLabel(this))
    , m_buttonBox(new QDialogButtonBox(QDialogButtonBox::Close, this))
{
    setWindowTitle(title);
    setModal(true);

    m_hintLabel->setObjectName(QStringLiteral("hintLabel"));
    m_hintLabel->setWordWrap(true);
    m_hintLabel->setTextFormat(Qt::PlainText);
    m_hintLabel->hide();
    m_view->setAccessibleName(title);
    m_view->setRootIsDecorated(false);
    m_view->setAlternatingRowColors(true);
    m_view->setUniformRowHeights(true);
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    m_detailsLabel->setObjectName(QStringLiteral("detailsLabel"));
    m_detailsLabel->setWordWrap(true);
    m_detailsLabel->setTextFormat(Qt::PlainText);
    m_detailsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse
                                            | Qt::TextSelectableByKeyboard);
    m_detailsLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_detailsLabel->setMinimumHeight(5 * fontMetrics().lineSpacing());

    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_hintLabel);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_detailsLabel);
    layout->addWidget(m_buttonBox);
}

CListFrame::~CListFrame() = default;

void CListFrame::setHint(const QString &hint)
{
    m_hintLabel->setText(hint);
    m_hintLabel->setVisible(!hint.isEmpty());
}

void CListFrame::setDetails(const QString &details)
{
    m_detailsLabel->setText(details);
}

void CListFrame::replaceDetails(QWidget *widget)
{
    delete layout()->replaceWidget(m_detailsLabel, widget);
    m_detailsLabel->hide();
}

void CListFrame::addAboveList(QLayout *row)
{
    auto *const frameLayout = static_cast<QVBoxLayout *>(layout());
    frameLayout->insertLayout(frameLayout->indexOf(m_view), row);
}

QPushButton *CListFrame::addButton(const QString &text, const char *name)
{
    QPushButton *const button = m_buttonBox->addButton(text, QDialogButtonBox::ActionRole);
    button->setObjectName(QLatin1String(name));
    return button;
}

QPushButton *CListFrame::getCloseButton() const
{
    return m_buttonBox->button(QDialogButtonBox::Close);
}

QTreeView *CListFrame::getView() const
{
    return m_view;
}

} // namespace Viewer::AppCore
