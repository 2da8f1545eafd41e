#pragma once

#include <QString>

namespace core::screens {

/// " v" and the program's version, major, minor and revision.
QString VersionText();

} // namespace core::screens
