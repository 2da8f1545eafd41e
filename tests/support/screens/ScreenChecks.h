#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace support {

// Rules for every screen; each returns the faults it finds.

/// Two controls that show together with the same letter to jump to, and letters that jump nowhere.
std::vector<std::string> MnemonicFaults(const QWidget& screen);

/// Controls that the Tab key never reaches, or out of reading order: from top to bottom, then left
/// to right.
std::vector<std::string> TabOrderFaults(QWidget& screen);

/// Controls for entries that have no name for those who can't see them.
std::vector<std::string> NameFaults(const QWidget& screen);

/// The faults of all these rules, and those that Portray finds under `name`.
std::vector<std::string> LookFaults(QWidget& screen, const std::string& name);
/// The same for each tab of a form, under `name` with the number of the tab.
std::vector<std::string> LookFaultsOfTabs(QWidget& form, const std::string& name);

} // namespace support
