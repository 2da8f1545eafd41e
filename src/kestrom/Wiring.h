#pragma once

#include "shell/screens/Commands.h"

namespace kestrom {

/// Gives the process its windows' side: dialogs, help, the open records and the message pump.
void RegisterPlatform();

/// Gives each record kind its editor.
void RegisterEditors();

/// The menu items that other rooms' screens stand behind.
shell::screens::Commands MenuCommands();

} // namespace kestrom
