#include "shell/ResetSample.h"

#include <algorithm>

#include "core/BooksSettings.h"
#include "core/CoreFixture.h"
#include "core/Globals.h"
#include "core/Rows.h"
#include "platform/database/DatabaseFile.h"
#include "platform/values/Errors.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "store/CreateDatabase.h"

namespace {

using platform::Date;
namespace fs = std::filesystem;

const Date kToday(2024, 5, 17);

class ResetSample : public tests::CoreProcess {
  protected:
    ResetSample() {
        shell::RegisterLogic();
        shell::MakeSamplePortfolio(Sample(), 2, kToday);
    }

    fs::path Sample() const { return Folder() / "sample"; }
    static std::string Ask(const fs::path& folder, const char* sql) {
        platform::Connection books;
        books.Open(folder / store::kDatabaseFile, platform::OpenMode::ReadOnly);
        const platform::Value first = core::ReadValue(sql, {}, books);
        return first.IsNull() ? "null" : first.AsText();
    }
    static std::string Leases(const fs::path& folder) {
        return Ask(folder, "SELECT Count(*) FROM Lease");
    }
    /// Enters something in the books of a folder.
    static void Spoil(const fs::path& folder) {
        platform::Connection books;
        books.Open(folder / store::kDatabaseFile);
        books.Execute("DELETE * FROM Lease");
        books.Execute("UPDATE Configuration SET CompanyName = 'Mine'");
    }
};

TEST_F(ResetSample, MakesItNewWhereItIsAndKnowsItAgain) {
    const std::string leases = Leases(Sample());
    fs::create_directory(Sample() / "NewSample");
    for (int time = 0; time < 2; ++time) {
        Spoil(Sample());
        fs::remove(Sample() / "Vestrel.runs");
        shell::ResetSample(Sample(), 2, kToday);
        EXPECT_EQ(Leases(Sample()), leases) << time;
        EXPECT_EQ(Ask(Sample(), "SELECT CompanyName FROM Configuration"),
                  "Marchetti Rentals (Sample Books)");
        EXPECT_TRUE(fs::exists(Sample() / "Vestrel.runs"));
    }
    EXPECT_TRUE(fs::exists(Sample() / "NewSample")) << "a folder of the user's";
    const auto drafts = std::ranges::count_if(fs::directory_iterator(Sample()), [](auto& entry) {
        return entry.path().filename().string().starts_with("NewSample");
    });
    EXPECT_EQ(drafts, 1);
    EXPECT_FALSE(core::App().Connection.IsOpen());
}

TEST_F(ResetSample, TouchesNoOtherBooks) {
    store::CreateDatabase(Folder() / "own");
    fs::copy(Sample(), Folder() / "copy", fs::copy_options::recursive);
    for (const char* const name : {"own", "copy", "none"}) {
        const fs::path folder = Folder() / name;
        if (fs::exists(folder)) Spoil(folder);
        EXPECT_THROW(shell::ResetSample(folder, 2, kToday), platform::Error) << name;
        if (fs::exists(folder)) {
            EXPECT_EQ(Leases(folder), "0") << name;
        }
    }
}

TEST_F(ResetSample, WaitsForNoOtherProgramThatWrites) {
    Spoil(Sample());
    platform::SetBusyTimeout(std::chrono::milliseconds(20));
    platform::Connection other;
    other.Open(Sample() / store::kDatabaseFile);
    {
        platform::UnitOfWork unit(other);
        other.Execute("UPDATE Configuration SET CompanyName = 'Theirs'");
        EXPECT_THROW(shell::ResetSample(Sample(), 2, kToday), platform::DatabaseError);
        unit.Commit();
    }
    EXPECT_EQ(Ask(Sample(), "SELECT CompanyName FROM Configuration"), "Theirs");
    // A program that only has it open sees the new one.
    shell::ResetSample(Sample(), 2, kToday);
    platform::SetBusyTimeout(platform::kBusyTimeout);
    EXPECT_EQ(core::ReadValue("SELECT CompanyName FROM Configuration", {}, other).AsText(),
              "Marchetti Rentals (Sample Books)");
}

} // namespace
