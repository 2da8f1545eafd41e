#include <filesystem>
#include <fstream>

#include "core/CoreFixture.h"
#include "core/ShippedFiles.h"
#include "platform/system/Paths.h"

namespace {

using namespace tests;
namespace fs = std::filesystem;

class ShippedFiles : public CoreProcess {
  protected:
    ShippedFiles() { fs::create_directory(PathTo("ours")); }

    void Ship(const std::string& name, const std::string& text) { MakeFile("ours/" + name, text); }
    void Start() { core::InstallShippedFiles(PathTo("ours"), PathTo("Reports")); }
    /// The text of a file in the reports folder, "-" without one.
    std::string Text(const std::string& name) {
        const fs::path file = PathTo("Reports/" + name);
        return fs::exists(file) ? platform::ReadWholeFile(file) : "-";
    }
};

TEST_F(ShippedFiles, AreRenewedUnlessTheUserChangedThem) {
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

TEST_F(ShippedFiles, LeaveAUsersFileOfTheSameNameAlone) {
    fs::create_directory(PathTo("Reports"));
    MakeFile("Reports/roll.rpt", "mine");
    Ship("roll.rpt", "ours");
    Start();
    EXPECT_EQ(Text("roll.rpt"), "mine");
    EXPECT_EQ(Text("roll.rpt.new"), "ours");
    core::InstallShippedFiles({}, PathTo("Reports"));
    core::InstallShippedFiles(PathTo("nowhere"), PathTo("Reports"));
    EXPECT_EQ(Text("roll.rpt"), "mine");
}

TEST_F(ShippedFiles, KeepANeighbourThatTheUserChanged) {
    Ship("roll.rpt", "one");
    Start();
    MakeFile("Reports/roll.rpt", "mine");
    Ship("roll.rpt", "two");
    Start();
    Ship("roll.rpt", "three");
    Start();
    EXPECT_EQ(Text("roll.rpt.new"), "three") << "the neighbour was ours";
    MakeFile("Reports/roll.rpt.new", "mine too");
    Ship("roll.rpt", "four");
    Start();
    EXPECT_EQ(Text("roll.rpt"), "mine");
    EXPECT_EQ(Text("roll.rpt.new"), "mine too");
    EXPECT_EQ(Text("roll.rpt.new.new"), "four");
}

TEST_F(ShippedFiles, AreInstalledBesideOneThatCannotBe) {
    fs::create_directories(PathTo("Reports/b.rpt"));
    for (const char* name : {"a.rpt", "b.rpt", "c.rpt"})
        Ship(name, "one");
    Start();
    EXPECT_EQ(Text("a.rpt"), "one");
    EXPECT_EQ(Text("c.rpt"), "one");
    fs::remove(PathTo("Reports/a.rpt"));
    fs::remove(PathTo("Reports/b.rpt"));
    Start();
    EXPECT_EQ(Text("a.rpt"), "-") << "deleted by the user";
    EXPECT_EQ(Text("b.rpt"), "one") << "tried again";
}

} // namespace
