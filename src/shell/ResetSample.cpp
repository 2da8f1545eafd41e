#include "shell/ResetSample.h"

#include <cstdlib>
#include <system_error>

#include <fmt/core.h>

#include "core/BooksSettings.h"
#include "core/Globals.h"
#include "core/Session.h"
#include "platform/database/OverwriteDatabase.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "shell/RunHistory.h"
#include "shell/SampleLife.h"
#include "store/CreateDatabase.h"

namespace shell {

namespace fs = std::filesystem;

namespace {

bool HoldsItsSample(const fs::path& folder) {
    core::Globals& app = core::App();
    app.DbPath = platform::AddBackslash(folder.string());
    app.Connection.Open(folder / store::kDatabaseFile, platform::OpenMode::ReadOnly);
    const bool isSample = core::IsSample();
    core::CloseDatabase(app.Connection);
    return isSample;
}

void MarkDraft(const fs::path& draft, const fs::path& folder) {
    platform::Connection& books = core::App().Connection;
    books.Open(draft / store::kDatabaseFile);
    core::MarkAsSample(folder);
    core::CloseDatabase(books);
}

void CheckIsSample(const fs::path& folder) {
    if (HoldsItsSample(folder)) return;
    throw platform::Error(
        fmt::format("The books in {} were not made as a sample there.", folder.string()));
}

/// A new folder for the new sample; it is deleted at the end.
class DraftFolder {
  public:
    explicit DraftFolder(const fs::path& folder) {
        std::string name = (folder / "NewSample-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw platform::Error(
                fmt::format("No folder for the new sample can be made in {}.", folder.string()));
        }
        draft_ = name;
    }
    ~DraftFolder() {
        std::error_code ignored;
        fs::remove_all(draft_, ignored);
    }
    DraftFolder(const DraftFolder&) = delete;
    DraftFolder& operator=(const DraftFolder&) = delete;

    const fs::path& Path() const { return draft_; }

  private:
    fs::path draft_;
};

/// The history of the old sample's runs would name rows that no longer exist.
void MoveHistory(const fs::path& from, const fs::path& to) {
    std::error_code failed;
    fs::rename(HistoryFileOf(from), HistoryFileOf(to), failed);
    if (failed) fs::remove(HistoryFileOf(to), failed);
}

} // namespace

void ResetSample(const fs::path& folder, int units, platform::Date today) {
    CheckIsSample(folder);
    const DraftFolder draft(folder);
    MakeSamplePortfolio(draft.Path(), units, today);
    MarkDraft(draft.Path(), folder);
    // Other books may have been restored in the meantime.
    CheckIsSample(folder);
    const fs::path books = folder / store::kDatabaseFile;
    platform::OverwriteDatabase(books, draft.Path() / store::kDatabaseFile);
    MoveHistory(draft.Path() / store::kDatabaseFile, books);
}

} // namespace shell
