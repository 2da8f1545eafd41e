#pragma once

#include <functional>
#include <vector>

#include "search/Finder.h"

class QMainWindow;

namespace shell::screens {

/// Something to be found in the program, and how it opens.
struct SearchItem {
    search::Item item;
    std::function<void()> open;
};

/// Adds the categories of transactions; one opens the list of categories.
void AddCategories(QMainWindow& window, std::vector<SearchItem>& items);
/// Adds the reports of the catalogue. One that asks nothing runs; another opens the catalogue.
void AddReports(QMainWindow& window, std::vector<SearchItem>& items);
/// Adds the items of the menus.
void AddCommands(QMainWindow& window, std::vector<SearchItem>& items);
/// Adds what can be set in the preferences and the configuration; each opens its screen at its
/// place.
void AddSettings(QMainWindow& window, std::vector<SearchItem>& items);

} // namespace shell::screens
