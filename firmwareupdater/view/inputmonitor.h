#pragma once

#include <QObject>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Remembers whether the user pressed a key or a mouse button last, in whatever window. There is at
/// most one for all views; it watches the application and lives as long, unless remove() ends it.
class CInputMonitor : public QObject
{
    Q_OBJECT

public:
    /// The one monitor, made on demand. Whoever keeps it guards it against remove().
    [[nodiscard]] static const CInputMonitor *get();

    /// Takes the monitor away from the application.
    static void remove();

    [[nodiscard]] bool isKeyboardUsed() const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit CInputMonitor(QObject *application);

    bool m_isKeyboardUsed = false;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
