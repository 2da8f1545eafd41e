#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// Puts the shipped report files where the program reads them, loads the catalogue, and gives the
/// record forms their report menus and the program its report viewer.
void LoadReports();

/// The main window's printing of the selected record.
void AddReportCommands(shell::screens::Commands& commands);

} // namespace kestrom
