#pragma once

#include <QHash>
#include <QStringList>
#include <QWidget>

class QGridLayout;
class QMenu;

namespace Viewer::ImageView {

class CImageTile;

/// The images of all acquiring cameras, of at most nine, and of the selected camera whether it
/// acquires or not. While nothing is selected and nothing acquires, one tile without a camera.
class CImageGrid : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MAXIMUM_COUNT = 9;

    explicit CImageGrid(QWidget *parent = nullptr);
    ~CImageGrid() override;

    /// Those that have been acquiring longest stay. A selected camera that is beyond the ninth
    /// stands in the place of the last one.
    void setAcquiring(const QString &cameraId, const QString &name, bool isAcquiring);

    /// Empty: no camera.
    void setSelected(const QString &cameraId, const QString &name);

    void setOptions(bool showsSaturation, bool showsHistogram);

    /// For the right button in each view. Borrowed.
    void setContextMenu(QMenu *menu);

    /// Null: it is not shown.
    [[nodiscard]] CImageTile *findTile(const QString &cameraId) const;

    /// That of the selected camera, or the one without a camera. Null: others acquire, and none is
    /// selected.
    [[nodiscard]] CImageTile *getSelectedTile() const;

    /// In the order of their places: by lines, and in them from the left.
    [[nodiscard]] QStringList getShownIds() const;

signals:
    /// The user wants to work with this camera.
    void cameraActivated(const QString &cameraId);
    /// Of the selected camera, see `CImageTile::pictureReady()`.
    void pictureReady(const QByteArray &png, const QString &name);

private:
    void arrange();
    CImageTile *createTile(const QString &cameraId);

    QGridLayout *const m_layout;
    QHash<QString, CImageTile *> m_tiles; // of those that are shown, by the id of the camera
    QHash<QString, QString> m_names; // the same
    QStringList m_shownIds;
    QStringList m_acquiring; // in the order of their starts
    QString m_selected;
    QMenu *m_contextMenu = nullptr;
    bool m_showsSaturation = false;
    bool m_showsHistogram = false;
};

} // namespace Viewer::ImageView
