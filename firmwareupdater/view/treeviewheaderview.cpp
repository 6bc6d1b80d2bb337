#include "treeviewheaderview.h"

#include "constants.h"
#include "readablepalette.h"
#include "style/treeviewheaderstyle.h"

namespace Plugin::FirmwareUpdater::Internal::View {

CTreeViewHeaderView::CTreeViewHeaderView(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_style(std::make_unique<Style::CTreeViewHeaderStyle>())
{
    setStyle(m_style.get());

    QFont titleFont = font();
    titleFont.setPointSize(11);
    titleFont.setWeight(QFont::Bold);
    setFont(titleFont);

    // Titles are drawn in the colour of button texts, but on the white of the tree.
    QPalette titlePalette;
    titlePalette.setColor(QPalette::Base, Constants::WHITE_COLOR);
    setReadableText(titlePalette, QPalette::ButtonText);
    setPalette(titlePalette);

    setDefaultAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextElideMode(Qt::ElideRight);
}

CTreeViewHeaderView::~CTreeViewHeaderView()
{
    // The widget's own destructor must not meet a style that is gone.
    setStyle(nullptr);
}

QSize CTreeViewHeaderView::sizeHint() const
{
    const QSize hint = QHeaderView::sizeHint();
    return {hint.width(), hint.height() < 25 ? 36 : hint.height() + 11};
}

} // namespace Plugin::FirmwareUpdater::Internal::View
