#pragma once

#include <string_view>

class QAction;
class QMenu;

namespace shell::screens {

inline constexpr std::string_view kNotInThisVersion = "Not available in this version.";

/// Enables a menu item if `reason` is empty; otherwise disables it, and its tooltip tells the
/// reason as well.
void SetAvailable(QAction& item, std::string_view reason);

/// Makes the menu show the tooltips of its disabled items, not those of the others.
void ShowReasons(QMenu& menu);

/// Sets an item's tooltip while it is enabled: what it does, and its key.
void SetTip(QAction& item);

} // namespace shell::screens
