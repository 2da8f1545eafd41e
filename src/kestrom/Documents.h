#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// The main window's commands on the documents of the selected records: letters and pictures.
void AddDocumentCommands(shell::screens::Commands& commands);

} // namespace kestrom
