#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace tests {

// Rules for whole forms, panels and all; each returns the faults it finds.

/// Controls that show and can be used, but have no name for users who can't see them: neither a
/// text nor a label that is their buddy nor an accessible name.
std::vector<std::string> NamelessFaults(const QWidget& screen);

/// Controls that get less room than their text needs.
std::vector<std::string> ClippingFaults(const QWidget& screen);

} // namespace tests
