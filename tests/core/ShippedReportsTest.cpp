#include <filesystem>
#include <fstream>

#include "core/CoreFixture.h"
#include "core/ShippedReports.h"
#include "platform/system/Paths.h"

namespace tests {

namespace {

namespace fs = std::filesystem;

class ShippedReports : public CoreProcess {
  protected:
    ShippedReports() { fs::create_directory(PathTo("ours")); }

    void Ship(const std::string& name, const std::string& text) { MakeFile("ours/" + name, text); }
    void Start() { core::InstallShippedReports(PathTo("ours"), PathTo("Reports")); }
    /// The text of a file in the reports folder, "-" without one.
    std::string Text(const std::string& name) {
        const fs::path file = PathTo("Reports/" + name);
        return fs::exists(file) ? platform::ReadWholeFile(file) : "-";
    }
};

TEST_F(ShippedReports, AreRenewedUnlessTheUserChangedThem) {
    for (const char* name : {"kept.rpt", "changed.rpt", "deleted.rpt"})
        Ship(name, "one");
    Start();
    EXPECT_EQ(Text("kept.rpt"), "one");
    MakeFile("Reports/changed.rpt", "mine");
    fs::remove(PathTo("Reports/deleted.rpt"));
    Start();
    EXPECT_EQ(Text("changed.rpt"), "mine");
    EXPECT_EQ(Text("changed.rpt.new"), "-") << "ours is not newer than the one that was changed";
    EXPECT_EQ(Text("deleted.rpt"), "-");

    for (const char* name : {"kept.rpt", "changed.rpt", "deleted.rpt", "added.rcpt"})
        Ship(name, "two");
    Start();
    EXPECT_EQ(Text("kept.rpt"), "two");
    EXPECT_EQ(Text("changed.rpt"), "mine");
    EXPECT_EQ(Text("changed.rpt.new"), "two");
    EXPECT_EQ(Text("deleted.rpt"), "-");
    EXPECT_EQ(Text("added.rcpt"), "two");
    fs::remove(PathTo("Reports/changed.rpt.new"));
    Start();
    EXPECT_EQ(Text("changed.rpt.new"), "-") << "it is offered once";
}

TEST_F(ShippedReports, LeaveAUsersFileOfTheSameNameAlone) {
    fs::create_directory(PathTo("Reports"));
    MakeFile("Reports/roll.rpt", "mine");
    Ship("roll.rpt", "ours");
    Start();
    EXPECT_EQ(Text("roll.rpt"), "mine");
    EXPECT_EQ(Text("roll.rpt.new"), "ours");
    core::InstallShippedReports({}, PathTo("Reports"));
    core::InstallShippedReports(PathTo("nowhere"), PathTo("Reports"));
    EXPECT_EQ(Text("roll.rpt"), "mine");
}

} // namespace

} // namespace tests
