#pragma once

#include "viewer/camera/featureinfo.h"

#include <QHash>
#include <QVector>
#include <QWidget>

class QStandardItem;
class QStandardItemModel;

namespace Viewer::CameraSettings {

/// All features of a camera by category, to look at, with a field that leaves only some of them.
/// Whatever the camera says is shown as plain text on one line.
class CFeatureTree : public QWidget
{
    Q_OBJECT

public:
    explicit CFeatureTree(QWidget *parent = nullptr);

    /// Shows @p features and no others.
    void setFeatures(const QVector<Camera::CFeatureInfo> &features);

    /// Brings those of @p features that are shown up to date.
    void update(const QVector<Camera::CFeatureInfo> &features);

    /// The names of @p count features that are shown, of others at each call until it is the turn
    /// of the first ones again.
    [[nodiscard]] QStringList takeNextNames(int count);

private:
    [[nodiscard]] QStandardItem *findCategory(const QString &path);

    QStandardItemModel *const m_model;
    QHash<QString, QStandardItem *> m_categories; ///< by path
    QHash<QString, QStandardItem *> m_values; ///< by name of the feature
    QStringList m_names;
    int m_next = 0;
};

} // namespace Viewer::CameraSettings
