#include "core/Globals.h"

#include <gmock/gmock.h>

#include "core/AppPath.h"
#include "core/CoreFixture.h"
#include "core/Startup.h"
#include "platform/system/Paths.h"
#include "support/Cases.h"

namespace {

using CommandLine = tests::CoreProcess;
using ProgramDirectory = tests::CoreProcess;

std::string SwitchesAsText() {
    const core::Globals& app = core::App();
    std::string text;
    if (app.SwitchNoDb) text += "nodb ";
    if (app.SwitchDiag) text += "diag ";
    if (app.SwitchUpgradeDb) text += "upgradedb ";
    if (app.Expert) text += "expert ";
    return text + "[" + app.LoadFile + "][" + app.DbName + "][" + app.AppStart + "]";
}

TEST_F(CommandLine, SwitchesAreReadAsTheyAreWritten) {
    support::ForEachCase(
        VESTREL_TEST_DATA "/commandline.cases", "command lines", [](const support::Case& each) {
            core::Globals& app = core::App();
            app.DbName = "Default";
            app.Expert = app.SwitchDiag = app.SwitchNoDb = app.SwitchUpgradeDb = false;
            app.LoadFile = app.AppStart = "";
            core::ParseCommandLine(each["line"]);
            EXPECT_EQ(SwitchesAsText(), each["switches"]);
        });
}

TEST_F(ProgramDirectory, IsWhereTheProgramIsUnlessThatIsInstalledOrReadOnly) {
    namespace fs = std::filesystem;
    const fs::path home = Folder() / "home";
    const std::string homeOfFiles = (home / "Vestrel").string();
    const fs::path build = Folder() / "build/bin";
    const fs::path installed = Folder() / "usr/lib/vestrel";
    const fs::path copied = Folder() / "usr/lib/copied";
    const fs::path copiedShare = copied / "share";
    const fs::path installedShare = Folder() / "usr/share/vestrel";
    for (const fs::path& folder : {build, installed, copiedShare, installedShare})
        fs::create_directories(folder);

    EXPECT_EQ(core::ChooseAppPath(build, home), build.string()) << "its files aren't there yet";
    EXPECT_EQ(core::ShippedFolderOf(build), fs::path());
    EXPECT_EQ(core::ChooseAppPath(installed, home), homeOfFiles) << "writable, as it is for root";
    EXPECT_EQ(core::ShippedFolderOf(installed), installedShare);
    EXPECT_EQ(core::ChooseAppPath(copied, home), copied.string()) << "what is beside it is its own";
    EXPECT_EQ(core::ShippedFolderOf(copied), copiedShare);
    // A directory that isn't there can't be written, whoever runs this.
    EXPECT_EQ(core::ChooseAppPath(Folder() / "none", home), homeOfFiles);
    EXPECT_FALSE(platform::FileExists(home.string())) << "finding writes nothing";

    core::SetAppPath(homeOfFiles);
    core::MakeDirectories();
    EXPECT_TRUE(fs::is_directory(home / "Vestrel/Docs"));
}

TEST_F(ProgramDirectory, MissingDirectoriesAreMadeAroundWhatStandsThere) {
    MakeFile("Backup", "a file in the way");
    core::MakeDirectories();
    core::MakeDirectories();
    for (const auto* name : {"db", "Docs", "Files"}) {
        EXPECT_TRUE(std::filesystem::is_directory(Folder() / name)) << name;
    }
    EXPECT_TRUE(std::filesystem::is_regular_file(Folder() / "Backup"));
}

TEST_F(ProgramDirectory, TemporaryFilesAreCleanedAndNothingElse) {
    for (const auto* name : {"tmp_1.doc", "TMP2.rtf", "x.tmp", "atmp.doc", "x.tmp2"}) {
        MakeFile(name);
    }
    std::filesystem::create_directory(Folder() / "tmp.d");
    core::CleanTmpFiles();
    std::vector<std::string> left;
    for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
        left.push_back(entry.path().filename().string());
    }
    EXPECT_THAT(left, testing::UnorderedElementsAre("atmp.doc", "x.tmp2", "tmp.d"));
}

} // namespace
