#pragma once

#include "support/updaterfixture.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeView>

/// What the tests of the wizard's views share: models to show, and ways to find things.
namespace ViewFixture {

using Entity = TestSupport::CUpdaterFixture::Entity;
using ModelPtr = QSharedPointer<TestSupport::CUpdaterFixture::Model>;

/// A flat list of @p count ticked cameras c0, c1, ...
inline ModelPtr makeList(int count)
{
    QList<Entity *> cameras;
    for (int i = 0; i < count; ++i)
        cameras.append(TestSupport::CUpdaterFixture::makeTickedCamera({QString("c%1").arg(i)}));
    auto model = ModelPtr::create(nullptr);
    model->setCameraDeviceList(cameras);
    return model;
}

/// The row with the name "Layer l", "A" (a model group), "Camera a1", ...
inline QModelIndex findRow(const QAbstractItemModel &model, const char *name)
{
    return model
        .match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

template <typename T = QWidget>
T *find(const QWidget &dialog, const char *name)
{
    return dialog.findChild<T *>(QLatin1String(name));
}

inline QString getText(const QWidget &dialog, const char *label)
{
    return find<QLabel>(dialog, label)->text();
}

/// The dialog's button with the text @p text.
inline QPushButton *getButton(const QWidget &dialog, const char *text)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *const button : buttons)
        if (button->text().remove('&') == text)
            return button;
    return nullptr;
}

inline QTreeView *getTree(const QWidget &dialog)
{
    return find<QTreeView>(dialog, "cameraTreeView");
}

/// The smallest rectangle around the pixels of @p place that @p matches says yes to.
template <typename TMatches>
QRect findPixels(const QImage &image, const QRect &place, const TMatches &matches)
{
    QRect found;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (matches(image.pixel(x, y)))
                found |= QRect(x, y, 1, 1);
    return found;
}

/// The rectangle around texts, boxes and icons; lines and backgrounds are not so dark.
inline QRect findInk(const QImage &image, const QRect &place)
{
    return findPixels(image, place, [](QRgb pixel) { return qGray(pixel) < 160; });
}

} // namespace ViewFixture
