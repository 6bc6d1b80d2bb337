#pragma once

#include "support/updaterfixture.h"
#include "view/cameraselectiondialog.h"
#include "view/firmwareupdatedialog.h"
#include "view/resultsummarydialog.h"
#include "view/updateselectiondialog.h"
#include "view/updatesummarydialog.h"

#include <QPainter>
#include <QTreeView>

/// What the tests of the wizard's views share: models to show, and ways to find things.
namespace TestSupport {

using TestSupport::find;
using TestSupport::getButton;
using TestSupport::getText;
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

/// A tree of one layer with the cameras a1 and a2 of the model A and b1 of the model B.
inline ModelPtr makeTree()
{
    auto model = ModelPtr::create(nullptr);
    model->setTransportLayerInfoVector(
        {TestSupport::makeLayer("l", {{"a1", "A"}, {"a2", "A"}, {"b1", "B"}})});
    return model;
}

/// The pages of the five steps.
struct CPages
{
    Plugin::FirmwareUpdater::Internal::View::CCameraSelectionDialog selection;
    Plugin::FirmwareUpdater::Internal::View::CUpdateSelectionDialog file;
    Plugin::FirmwareUpdater::Internal::View::CUpdateSummaryDialog summary;
    Plugin::FirmwareUpdater::Internal::View::CFirmwareUpdateDialog update;
    Plugin::FirmwareUpdater::Internal::View::CResultSummaryDialog result;
    const std::vector<Plugin::FirmwareUpdater::Internal::View::CUpdateDialogBase *> all{
        &selection, &file, &summary, &update, &result};

    /// Puts as much on each page as it may have to show: lists of @p count cameras with all kinds
    /// of states, and texts that begin with or consist of @p text.
    void fill(int count, const QString &text)
    {
        const ModelPtr list = makeList(count);
        for (int row = 0; row < 3; ++row)
            for (const int column : {4, 6, 7})
                list->setData(list->index(row, column), row, Qt::EditRole);
        for (auto *const page : all)
            page->setModel(list);
        file.setKorvaneSupportUrl("https://a.example");
        file.updateFirmwareUpdateInfo({TestSupport::UpdateInfoPtr(new TestSupport::CFakeUpdateInfo(
                                          "2.0", text.left(300), text))},
                                      false);
        file.updateCompatibility(false, false);
        summary.updateDowngradeInfo(true);
        summary.updateSidegradeInfo(true);
        update.updateOverallProgress(1, count);
        result.updateView();
        result.setInfoTextData("https://a.example", "/tmp/a.log");
        result.setErrorTextData(text.left(150) + QString(150, 'W'), false);
    }
};

/// The row with the name "Layer l", "A" (a model group), "Camera a1", ...
inline QModelIndex findRow(const QAbstractItemModel &model, const char *name)
{
    return model
        .match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
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

/// The device pixels of an icon on white: those of a picture of it where there is one for @p ratio.
inline QImage loadIcon(const QString &name, qreal ratio)
{
    const QString path = ":/firmwareupdater/icons/" + name;
    // In the format of pixmaps: Qt 6 scales others differently.
    QImage icon = QImage(ratio == 1 ? path : path + "@2x")
                      .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    icon.setDevicePixelRatio(1);
    if (ratio != 1)
        icon = icon.scaled((QSizeF(icon.size()) * ratio / 2).toSize(), Qt::IgnoreAspectRatio,
                           Qt::SmoothTransformation);
    QImage shown(icon.size(), QImage::Format_RGB32);
    shown.fill(Qt::white);
    QPainter(&shown).drawImage(0, 0, icon);
    return shown;
}

/// Whether @p image shows @p icon somewhere, pixel by pixel.
inline bool shows(const QImage &image, const QImage &icon)
{
    const QImage pixels = image.convertToFormat(icon.format());
    for (int y = 0; y + icon.height() <= pixels.height(); ++y)
        for (int x = 0; x + icon.width() <= pixels.width(); ++x)
            if (QImage(pixels.constScanLine(y) + 4 * x, icon.width(), icon.height(),
                       pixels.bytesPerLine(), icon.format())
                == icon)
                return true;
    return false;
}

} // namespace TestSupport
