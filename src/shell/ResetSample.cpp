#include "shell/ResetSample.h"

#include <system_error>

#include <fmt/core.h>

#include "core/BooksSettings.h"
#include "core/Globals.h"
#include "core/Session.h"
#include "platform/database/OverwriteDatabase.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
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

/// A folder for the new sample, which is deleted in the end.
class DraftFolder {
  public:
    explicit DraftFolder(const fs::path& folder) : draft_(folder / "NewSample") { Delete(); }
    ~DraftFolder() { Delete(); }
    DraftFolder(const DraftFolder&) = delete;
    DraftFolder& operator=(const DraftFolder&) = delete;

    const fs::path& Path() const { return draft_; }

  private:
    void Delete() const {
        std::error_code ignored;
        fs::remove_all(draft_, ignored);
    }

    fs::path draft_;
};

} // namespace

void ResetSample(const fs::path& folder, int units, platform::Date today) {
    if (!HoldsItsSample(folder)) {
        throw platform::Error(
            fmt::format("The books in {} were not made as a sample there.", folder.string()));
    }
    const DraftFolder draft(folder);
    MakeSamplePortfolio(draft.Path(), units, today);
    MarkDraft(draft.Path(), folder);
    platform::OverwriteDatabase(folder / store::kDatabaseFile, draft.Path() / store::kDatabaseFile);
}

} // namespace shell
