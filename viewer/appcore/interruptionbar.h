#pragma once

#include "viewer/camera/camerasnapshot.h"
#include "viewer/update/updaterecord.h"

#include <QFrame>
#include <QPointer>

#include <functional>

class QAction;
class QLabel;
class QPushButton;

namespace Viewer::AppCore {

/// Tells of updates whose process ended in the middle, one at a time: what has become of the camera
/// and what to do. Hidden while there is none.
class CInterruptionBar : public QFrame
{
    Q_OBJECT

public:
    /// What is known of a camera that has been found; an empty one: it has not.
    using SnapshotGetter = std::function<Camera::CCameraSnapshot(const QString &cameraId)>;

    /// @p journalFolder as of CUpdateJournal; empty: nothing is ever told.
    CInterruptionBar(const QString &journalFolder, const SnapshotGetter &getSnapshot,
                     QWidget *parent = nullptr);
    ~CInterruptionBar() override;

    /// The menu entry that opens the wizard, for a button that does the same. Borrowed, may die
    /// first; null: no such button.
    void setUpdateAction(QAction *action);

    /// Looks at the journals once more.
    void refresh();

private:
    void onUpdateActionChanged();
    void dismiss();
    [[nodiscard]] QString describe(const Update::CUpdateRecord &record) const;

    const QString m_journalFolder;
    const SnapshotGetter m_getSnapshot;
    Update::CUpdateRecord m_told; ///< the update that is told
    QPointer<QAction> m_updateAction;
    QLabel *m_label = nullptr;
    QPushButton *m_updateButton = nullptr;
};

} // namespace Viewer::AppCore
