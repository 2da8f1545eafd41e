#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// Registers everything that needs windows: dialogs, help, the open records and the message pump.
void RegisterPlatform();

/// Registers the editor of each record kind, and the letters menu that all editors have.
void RegisterEditors();

/// Returns the menu items that open screens of other rooms.
shell::screens::Commands MenuCommands();

} // namespace kestrom
