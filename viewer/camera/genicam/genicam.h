#pragma once

#include "cameraidentities.h"
#include "foundcamera.h"
#include "searchoptions.h"
#include "usbwatcher.h"

#include "viewer/camera/icamerakind.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QString>
#include <QTimer>
#include <QVector>

#include <atomic>
#include <mutex>

namespace Viewer::Camera::GenICam {

/// Real cameras, GigE Vision and USB3 Vision. Nothing is sent to anybody but the given
/// addresses unless searching the network is asked for.
class CGenICam : public ICameraKind
{
    Q_OBJECT

public:
    explicit CGenICam(const CSearchOptions &options = {}, QObject *parent = nullptr);
    ~CGenICam() override;

    // ICameraKind
    [[nodiscard]] QString getName() const override;
    [[nodiscard]] std::unique_ptr<ICameraHandle>
    createHandle(const QString &cameraId) const override;
    [[nodiscard]] std::unique_ptr<ICameraDevice> makeDevice(const QCborMap &description) override;
    [[nodiscard]] std::unique_ptr<ICameraStream> makeStream(const QCborMap &description) override;
    [[nodiscard]] QVector<CommandLine::COption> getOptions() override;
    void start() override;
    [[nodiscard]] QVector<Text::CLibraryVersion> getLibraries() const override;
    [[nodiscard]] QVector<CCameraSwitch> getSwitches() override;
    [[nodiscard]] ECameraPresence getPresence(const QString &cameraId) const override;

    // ICameraDeviceFactory
    [[nodiscard]] std::unique_ptr<ICameraDevice> createDevice(const QString &cameraId) override;

    // ICameraEnumerator
    [[nodiscard]] QVector<CTransportLayerSnapshot> enumerate() override;
    void cancel() override;

private:
    [[nodiscard]] QVector<CFoundCamera> findOnEthernet(bool searches) const;

    CSearchOptions m_options; ///< as asked for at the start
    std::atomic<bool> m_searchesNetwork;
    QTimer m_searchTimer; ///< cameras come and go without a word
    CUsbWatcher m_usbWatcher;
    std::atomic<bool> m_hasUsbChanged{false}; ///< since the last look at it, as far as was told
    std::atomic<bool> m_isCanceled{false};

    // Of the thread that enumerates.
    QVector<CFoundCamera> m_onEthernet; ///< by the last search
    QDeadlineTimer m_ethernetDeadline{0}; ///< so long it is as good as a new one

    mutable std::mutex m_mutex; ///< guards what follows
    CCameraIdentities m_identities;
    QHash<QString, CFoundCamera> m_found; ///< by the last enumeration, by id
};

} // namespace Viewer::Camera::GenICam
