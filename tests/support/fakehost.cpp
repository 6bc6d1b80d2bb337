#include "fakehost.h"

#include "core/baseexception.h"

namespace TestSupport {

using Plugin::CameraPool::CameraInfoPtr;

namespace {

class CFakeCommand : public Plugin::AppCore::ICommand
{
public:
    CFakeCommand(QAction *action, const Core::CId &id, const QList<Core::CId> &contexts)
        : m_action(action)
        , m_id(id)
    {
        for (const Core::CId &context : contexts)
            m_contexts.append(context.toString());
    }

    Core::CId getId() const override { return m_id; }
    QAction *getAction() const override { return m_action; }
    QStringList getContexts() const { return m_contexts; }

private:
    const QPointer<QAction> m_action;
    const Core::CId m_id;
    QStringList m_contexts;
};

class CFakeContainer : public Plugin::AppCore::IActionContainer
{
public:
    CFakeContainer(CFakeMenuService *menus, const Core::CId &id)
        : m_menus(menus)
        , m_id(id)
    {
    }

    void addAction(QSharedPointer<Plugin::AppCore::ICommand> command,
                   const Core::CId &groupId) override
    {
        const auto fakeCommand = command.staticCast<CFakeCommand>();
        m_menus->entries.append({m_id.toString(), groupId.toString(),
                                 fakeCommand->getId().toString(), fakeCommand->getContexts(),
                                 fakeCommand->getAction()});
    }

private:
    CFakeMenuService *const m_menus;
    const Core::CId m_id;
};

} // namespace

QVector<UpdateInfoPtr> CFakeUpdateService::getFirmwareUpdateInfos(const QString &updateFilePath,
                                                                  const QString &entryFilter)
{
    Q_UNUSED(entryFilter)

    readPaths.append(updateFilePath);
    if (!readError.isEmpty())
        throw Core::Exception::BaseException(readError);
    return entries;
}

bool CFakeUpdateService::getCompatibleFirmwareUpdates(CameraInfoPtr camera,
                                                      const QVector<UpdateInfoPtr> &all,
                                                      QVector<UpdateInfoPtr> &compatible,
                                                      bool &updatable)
{
    checkedIds.append(camera->getId());
    if (failingIds.contains(camera->getId()))
        throw Core::Exception::BaseException(QStringLiteral("no answer"));
    updatable = true;
    if (!incompatibleIds.contains(camera->getId()))
        compatible = all;
    return true;
}

QSharedPointer<Plugin::AppCore::IActionContainer>
CFakeMenuService::getActionContainer(const Core::CId &menuId)
{
    return QSharedPointer<CFakeContainer>::create(this, menuId);
}

QSharedPointer<Plugin::AppCore::ICommand>
CFakeMenuService::registerAction(QAction *action, const Core::CId &commandId,
                                 const QList<Core::CId> &contexts)
{
    return QSharedPointer<CFakeCommand>::create(action, commandId, contexts);
}

CMenuEntry CFakeMenuService::getEntry(const char *menu) const
{
    CMenuEntry found;
    for (const CMenuEntry &entry : entries) {
        if (entry.menu == QLatin1String(menu)) {
            Q_ASSERT(!found.action);
            found = entry;
        }
    }
    return found;
}

} // namespace TestSupport
