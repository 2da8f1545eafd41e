#pragma once

#include "platform/qt/Appearance.h"

namespace core::forms {

/// What the desktop shows of a window program: its name, its icon, and the colours that the user's
/// preferences ask for, which it reads. Made after the application and before its first window; it
/// lives as long as the program.
class ProgramLook {
  public:
    ProgramLook(const char* name, const char* icon);

  private:
    platform::qt::DesktopAppearance desktop_;
};

} // namespace core::forms
