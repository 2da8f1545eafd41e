#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// Adds the main window's commands for the documents of the selected records: letters and pictures.
void AddDocumentCommands(shell::screens::Commands& commands);

} // namespace kestrom
