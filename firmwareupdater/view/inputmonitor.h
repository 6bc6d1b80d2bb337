#pragma once

#include <QObject>

namespace Plugin::FirmwareUpdater::Internal::View {

/// Remembers whether the user pressed a key or a mouse button last, in whatever window.
class CInputMonitor : public QObject
{
    Q_OBJECT

public:
    explicit CInputMonitor(QObject *parent = nullptr);

    [[nodiscard]] bool isKeyboardUsed() const;

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool m_isKeyboardUsed = false;
};

} // namespace Plugin::FirmwareUpdater::Internal::View
