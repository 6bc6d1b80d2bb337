#pragma once

#include "hostapi_global.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace Plugin::CameraPool {

/// One entry of an update file. Immutable; its getters may be called on any thread, also while the
/// entry is being installed.
class HOSTAPI_EXPORT IFirmwareUpdateInfo : public QObject
{
    Q_OBJECT

public:
    explicit IFirmwareUpdateInfo(QObject *parent = nullptr);
    ~IFirmwareUpdateInfo() override;

    /// The firmware version that a camera has after the update.
    [[nodiscard]] virtual QString getVersion() const = 0;

    /// What the update is, in a few words; may be empty.
    [[nodiscard]] virtual QString getDescription() const = 0;

    /// The release notes, or the address of a page that shows them; may be empty.
    [[nodiscard]] virtual QString getReleaseNotes() const = 0;

    /// The update file that holds the entry.
    [[nodiscard]] virtual QString getFileName() const = 0;
};

} // namespace Plugin::CameraPool
