#include "core/Startup.h"

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/Session.h"
#include "platform/system/Paths.h"

namespace core {

bool OpenBooks() {
    std::string path;
    const bool isOpen = OpenDatabase(App().Connection, path);
    LoadBooks();
    return isOpen;
}

void LoadBooks() {
    if (CountTable("Configuration") == 0) CreateDefaultConfiguration(App().Connection);
    LoadConfiguration();
}

void CleanTmpFiles() {
    platform::DeleteMatching(App().AppPath, "tmp*.*");
    platform::DeleteMatching(App().AppPath, "*.tmp");
}

} // namespace core
