#pragma once

#include <QObject>

class QAction;
class QKeySequence;
class QMenu;
class QWidget;

namespace Viewer::ImageView {
class CImageGrid;
class CImageView;
} // namespace Viewer::ImageView

namespace Viewer::AppCore {

/// What a user can do with images: zoom, histogram, saturated pixels, save and copy. Zoom, save and
/// copy are for the image of the selected camera, the others for all images.
class CImageActions : public QObject
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object; @p window is the parent of dialogs. The images
    /// get a context menu.
    CImageActions(ImageView::CImageGrid &images, QWidget *window);
    ~CImageActions() override;

    /// In front of the last entry of @p menu.
    void addActions(QMenu *menu);

signals:
    /// A sentence for the user: what has happened, or what could not be done.
    void message(const QString &text);

private:
    QAction *createAction(const QString &name, const QString &text, const QKeySequence &shortcut);
    /// Of the selected camera, with an image; null: there is none.
    [[nodiscard]] ImageView::CImageView *findView() const;
    void updateOptions();
    void save();
    void copy();
    void askForFile(const QByteArray &png, const QString &name);

    ImageView::CImageGrid &m_images;
    QWidget *const m_window;
    QAction *m_saturationAction = nullptr;
    QAction *m_histogramAction = nullptr;
    QMenu *const m_menu;
};

} // namespace Viewer::AppCore
