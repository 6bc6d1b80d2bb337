#include "imageactions.h"

#include "modaldialogwatcher.h"

#include "viewer/files/replacefile.h"
#include "viewer/imageview/imagegrid.h"
#include "viewer/imageview/imagetile.h"
#include "viewer/imageview/imageview.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>

namespace Viewer::AppCore {

using ImageView::CImageView;

static const QLatin1String PICTURE_FOLDER_KEY("pictureFolder");

CImageActions::CImageActions(ImageView::CImageGrid &images, QWidget *window)
    : m_images(images)
    , m_window(window)
    , m_menu(new QMenu(window))
{
    m_menu->setObjectName(QStringLiteral("imageMenu"));
    const auto addZoom = [this](const QString &name, const QString &text,
                                const QKeySequence &shortcut, void (CImageView::*zoom)()) {
        connect(createAction(name, text, shortcut), &QAction::triggered, this, [this, zoom] {
            if (CImageView *const view = findView())
                (view->*zoom)();
        });
    };
    addZoom(QStringLiteral("fit"), tr("&Fit to window"), QKeySequence(QStringLiteral("Ctrl+0")),
            &CImageView::fit);
    addZoom(QStringLiteral("originalSize"), tr("Original si&ze"),
            QKeySequence(QStringLiteral("Ctrl+1")), &CImageView::showOriginalSize);
    addZoom(QStringLiteral("zoomIn"), tr("Zoom &in"), QKeySequence::ZoomIn, &CImageView::zoomIn);
    addZoom(QStringLiteral("zoomOut"), tr("Zoom &out"), QKeySequence::ZoomOut,
            &CImageView::zoomOut);
    m_menu->addSeparator();
    m_saturationAction
        = createAction(QStringLiteral("saturation"), tr("Mark satu&rated pixels"), Qt::Key_F3);
    m_histogramAction = createAction(QStringLiteral("histogram"), tr("&Histogram"),
                                     QKeySequence(QStringLiteral("Ctrl+H")));
    for (QAction *const action : {m_saturationAction, m_histogramAction}) {
        action->setCheckable(true);
        connect(action, &QAction::toggled, this, &CImageActions::updateOptions);
    }
    m_menu->addSeparator();
    connect(createAction(QStringLiteral("saveImage"), tr("Sa&ve image..."), QKeySequence::Save),
            &QAction::triggered, this, &CImageActions::save);
    connect(createAction(QStringLiteral("copyImage"), tr("Co&py image"),
                         Qt::CTRL | Qt::SHIFT | Qt::Key_C),
            &QAction::triggered, this, &CImageActions::copy);
    m_images.setContextMenu(m_menu);
    connect(&m_images, &ImageView::CImageGrid::pictureReady, this, &CImageActions::askForFile);
}

CImageActions::~CImageActions() = default;

QAction *CImageActions::createAction(const QString &name, const QString &text,
                                     const QKeySequence &shortcut)
{
    QAction *const action = m_menu->addAction(text);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    return action;
}

void CImageActions::addActions(QMenu *menu)
{
    QAction *const last = menu->actions().constLast();
    menu->insertActions(last, m_menu->actions());
    menu->insertSeparator(last);
}

CImageView *CImageActions::findView() const
{
    const ImageView::CImageTile *const tile = m_images.getSelectedTile();
    return tile && tile->getView()->hasImage() ? tile->getView() : nullptr;
}

void CImageActions::updateOptions()
{
    m_images.setOptions(m_saturationAction->isChecked(), m_histogramAction->isChecked());
}

void CImageActions::save()
{
    if (findView())
        m_images.getSelectedTile()->requestPicture();
    else
        emit message(tr("There is no image to save."));
}

void CImageActions::copy()
{
    const CImageView *const view = findView();
    // A copy: the image may be in memory of the camera's, which has little.
    if (view)
        QGuiApplication::clipboard()->setImage(view->getImage().copy());
    emit message(view ? tr("The image has been copied.") : tr("There is no image to copy."));
}

void CImageActions::askForFile(const QByteArray &png, const QString &name)
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    auto *const dialog = new QFileDialog(m_window, tr("Save image"),
                                         QSettings().value(PICTURE_FOLDER_KEY, pictures).toString(),
                                         tr("PNG images") + QLatin1String(" (*.png)"));
    dialog->setObjectName(QStringLiteral("saveImageDialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("png"));
    dialog->selectFile(name);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    CModalDialogWatcher::markAsOwn(dialog);
    connect(dialog, &QFileDialog::fileSelected, this, [this, png](const QString &path) {
        QSettings().setValue(PICTURE_FOLDER_KEY, QFileInfo(path).path());
        const QString shownPath = QDir::toNativeSeparators(path);
        const QString fault
            = png.isEmpty() ? tr("out of memory") : Files::replaceFile(path, png).getLocalized();
        emit message(fault.isEmpty()
                         ? tr("The image has been saved as %1.").arg(shownPath)
                         : tr("The image could not be saved as %1: %2.").arg(shownPath, fault));
    });
    dialog->open();
}

} // namespace Viewer::AppCore
