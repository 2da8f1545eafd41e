#pragma once

#include <string_view>

class QAction;
class QMenu;

namespace shell::screens {

inline constexpr std::string_view kNotInThisVersion = "Not available in this version.";

/// Enables a menu item if `reason` is empty; otherwise disables it and shows the reason in its
/// tooltip.
void SetAvailable(QAction& item, std::string_view reason);

/// Makes the menu show tooltips for its disabled items only.
void ShowReasons(QMenu& menu);

/// Sets the tooltip that an item has while it is enabled: its description and its key.
void SetTip(QAction& item);

} // namespace shell::screens
