#pragma once

#include "platform/qt/Appearance.h"

namespace core::forms {

/// The name, icon and colours of a window program. Reads the preferences, which choose the colours.
/// Made after the application and before its first window; it
/// lives as long as the program.
class ProgramLook {
  public:
    ProgramLook(const char* name, const char* icon);

  private:
    platform::qt::DesktopAppearance desktop_;
};

} // namespace core::forms
