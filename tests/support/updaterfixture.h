#pragma once

#include "fakehost.h"
#include "scriptedupdate.h"
#include "widgets.h"

#include "model/firmwareupdatetreemodel.h"
#include "service/firmwareupdaterservice.h"

#include <QSharedPointer>
#include <QTemporaryDir>

namespace TestSupport {

/// A fake host with the plug-in's real service published in it, and log files of its own.
class CUpdaterFixture
{
public:
    CUpdaterFixture();
    ~CUpdaterFixture();

    using Model = Plugin::FirmwareUpdater::Internal::Model::CFirmwareUpdateTreeModel;
    using Entity = Plugin::FirmwareUpdater::Internal::Entity::CFirmwareUpdateEntity;

    /// The lines of the open log file as "LEVEL message", without their times; every line must have
    /// the format of the log.
    [[nodiscard]] QStringList getLog() const;

    /// A ticked camera for a flat list, with @p job, which may be null.
    [[nodiscard]] static Entity *makeTickedCamera(const CCameraDescription &description,
                                                  CScriptedUpdate *job = nullptr);

    /// Does what a click on the row's box does.
    static void tick(Model &model, const QModelIndex &row, bool on = true);

    QTemporaryDir temporaryFolder;
    CFakeHost host;
    QSharedPointer<Plugin::FirmwareUpdater::Internal::Service::CFirmwareUpdaterService> service;
    const QSharedPointer<Model> model;
};

} // namespace TestSupport
