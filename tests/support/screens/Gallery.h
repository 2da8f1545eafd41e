#pragma once

#include <QWidget>
#include <functional>
#include <string>

namespace support {

/// Saves a picture of a screen that is shown, in light and in dark, below the build folder's
/// "screens". Returns what is wrong to the eye: a control that gets less room than it asks for.
std::vector<std::string> Portray(QWidget& screen, const std::string& name);

} // namespace support
