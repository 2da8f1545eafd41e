#include "core/Startup.h"

#include <exception>
#include <utility>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/Session.h"
#include "platform/system/Paths.h"

namespace core {

namespace {

bool OpenToRead() {
    App().OpenFault.clear();
    try {
        App().Connection.Open(App().DbFile, platform::OpenMode::ReadOnly);
        return true;
    } catch (const std::exception& error) {
        App().OpenFault = error.what();
        return false;
    }
}

BooksStep& StepOfBooks() {
    static BooksStep step;
    return step;
}

void AddWhatIsMissing() {
    if (!StepOfBooks()) return;
    try {
        StepOfBooks()(App().Connection);
    } catch (const std::exception&) {
        // Books that can't be written to, or aren't open, stay as they are.
    }
}

} // namespace

void SetBooksStep(BooksStep step) {
    StepOfBooks() = std::move(step);
}

bool OpenBooks(BooksUse use) {
    std::string path;
    const bool isOpen = use == BooksUse::Read ? OpenToRead() : OpenDatabase(App().Connection, path);
    LoadBooks(use);
    return isOpen;
}

void LoadBooks(BooksUse use) {
    if (use == BooksUse::Keep) {
        AddWhatIsMissing();
        if (CountTable("Configuration") == 0) CreateDefaultConfiguration(App().Connection);
    }
    LoadConfiguration();
}

void CleanTmpFiles() {
    platform::DeleteMatching(App().AppPath, "tmp*.*");
    platform::DeleteMatching(App().AppPath, "*.tmp");
}

} // namespace core
