#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// Loads the catalogue of reports, and gives the record forms their report menus and the program
/// its report viewer.
void LoadReports();

/// The main window's printing of the selected record.
void AddReportCommands(shell::screens::Commands& commands);

} // namespace kestrom
