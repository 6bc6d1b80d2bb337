#pragma once

#include "model/firmwareupdatetreemodel.h"
#include "support/fakeinfos.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTreeView>

/// What the tests of the wizard's views share: models to show, and ways to find things.
namespace ViewFixture {

using Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity;
using Plugin::FirmwareUpdater::Internal::Model::CFirmwareUpdateTreeModel;
using ModelPtr = QSharedPointer<CFirmwareUpdateTreeModel>;

/// One layer with the models A (cameras a1 and a2) and B (camera b1).
inline ModelPtr makeTree()
{
    const QString a = QStringLiteral("A");
    auto model = ModelPtr::create(nullptr);
    model->setTransportLayerInfoVector(
        {TestSupport::makeLayer(QStringLiteral("l"),
                                {{QStringLiteral("a1"), a},
                                 {QStringLiteral("a2"), a},
                                 {QStringLiteral("b1"), QStringLiteral("B")}})});
    return model;
}

/// A flat list of @p count ticked cameras c0, c1, ...
inline ModelPtr makeList(int count)
{
    QList<CFirmwareUpdateEntity *> cameras;
    for (int i = 0; i < count; ++i) {
        auto *camera = new CFirmwareUpdateEntity;
        camera->setEntityType(CFirmwareUpdateEntity::EFirmwareUpdateEntityType::CameraDevice);
        camera->setCameraInfo(TestSupport::makeCamera({QStringLiteral("c%1").arg(i)}));
        camera->setSelected(true);
        cameras.append(camera);
    }
    auto model = ModelPtr::create(nullptr);
    model->setCameraDeviceList(cameras);
    return model;
}

inline CFirmwareUpdateEntity *getEntity(const QModelIndex &index)
{
    return static_cast<CFirmwareUpdateEntity *>(index.internalPointer());
}

inline QTreeView *getTree(const QWidget &dialog)
{
    return dialog.findChild<QTreeView *>(QStringLiteral("cameraTreeView"));
}

/// The button of the dialog's button box with the text @p text.
inline QPushButton *getButton(const QWidget &dialog, const QString &text)
{
    const auto *box = dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            return qobject_cast<QPushButton *>(button);
        }
    }
    return nullptr;
}

/// Makes the tree @p width wide by resizing its dialog.
inline void resizeTree(QWidget *dialog, int width)
{
    dialog->resize(dialog->width() + width - getTree(*dialog)->width(), dialog->height());
}

inline QVector<int> getColumnWidths(const QTreeView &tree)
{
    QVector<int> widths;
    for (int column = 0; column < tree.model()->columnCount(); ++column) {
        if (!tree.isColumnHidden(column)) {
            widths.append(tree.columnWidth(column));
        }
    }
    return widths;
}

/// Whether the widget would be seen if its window were.
inline bool isShown(const QWidget &dialog, const char *name)
{
    return !dialog.findChild<QWidget *>(QLatin1String(name))->isHidden();
}

template <typename T>
T *find(const QWidget &dialog, const char *name)
{
    return dialog.findChild<T *>(QLatin1String(name));
}

} // namespace ViewFixture
