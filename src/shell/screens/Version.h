#pragma once

#include <QString>

namespace shell::screens {

/// Returns " v" and the program's version: major, minor and revision.
QString VersionText();

} // namespace shell::screens
