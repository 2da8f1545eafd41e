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

/// Date boxes that show by their colour only that they hold no date, without a picture for those
/// who see no colours and without words for those who see nothing. Changes what the boxes hold.
std::vector<std::string> DateFaults(const QWidget& screen);

/// Scrolling pages that are wider than the form shows them.
std::vector<std::string> WidthFaults(const QWidget& screen);

} // namespace tests
