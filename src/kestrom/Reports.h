#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// Loads the catalogue of reports, and gives the record forms their report menus and the program
/// its report viewer.
void LoadReports();

/// Adds the main window's commands that print the selected record.
void AddReportCommands(shell::screens::Commands& commands);

} // namespace kestrom
