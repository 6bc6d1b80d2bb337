#pragma once

#include "appcore/iwindowservice.h"

#include <QPointer>
#include <QWidget>

namespace Viewer::AppCore {

/// Hands out the main window.
class CWindowService : public Plugin::AppCore::IWindowService
{
    Q_OBJECT

public:
    /// @p mainWindow is borrowed.
    explicit CWindowService(QWidget *mainWindow, QObject *parent = nullptr);
    ~CWindowService() override;

    [[nodiscard]] QWidget *getMainWindow() const override;

private:
    const QPointer<QWidget> m_mainWindow;
};

} // namespace Viewer::AppCore
