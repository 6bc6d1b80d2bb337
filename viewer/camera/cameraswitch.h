#pragma once

#include <QString>

#include <functional>

namespace Viewer::Camera {

/// Something about a kind of cameras that the user switches on and off: an entry of a menu.
struct CCameraSwitch
{
    QString id; ///< the same in every language; unique among the switches of a kind
    QString group; ///< the submenu in which it stands; empty: none
    QString text; ///< with its mnemonic
    bool isOn = false;
    bool isEnabled = true;
    bool isRemembered = false; ///< the next start begins with it as it is left
    std::function<void(bool on)> set = {}; ///< valid as long as the kind is
};

} // namespace Viewer::Camera
