#include "platform/system/Paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/values/Errors.h"
#include "support/TemporaryFolder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Names(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

TEST(Paths, TakeBothSeparatorsAndAppendTheMachines) {
    EXPECT_EQ(AddBackslash("/data"), "/data/");
    EXPECT_EQ(AddBackslash("/data/"), "/data/");
    EXPECT_EQ(AddBackslash("C:\\data\\"), "C:\\data\\");
    EXPECT_EQ(PathOf("/data/db/Vestrel.mdb"), "/data/db/");
    EXPECT_EQ(PathOf("C:\\data/db\\Vestrel.mdb"), "C:\\data/db\\");
    EXPECT_EQ(PathOf("/data/db/"), "/data/db/");
    EXPECT_EQ(PathOf("Vestrel.mdb"), "");
    EXPECT_EQ(PathOf(""), "");
}

TEST(Paths, AFileExistsUnderItsTrimmedName) {
    const support::TemporaryFolder folder;
    WriteFileAtomically(folder / "Version", "9");
    EXPECT_TRUE(FileExists("  " + (folder / "Version").string() + " "));
    EXPECT_TRUE(FileExists(folder.Path().string() + "/"));
    EXPECT_FALSE(FileExists((folder / "Missing").string()));
    EXPECT_FALSE(FileExists((folder / "Version" / "below").string()));
    EXPECT_FALSE(FileExists("  "));
    EXPECT_FALSE(FileExists(std::string(5000, 'x')));
}

TEST(Paths, BaseDirectoriesFollowTheEnvironment) {
    setenv("HOME", "/home/anna", 1);
    setenv("XDG_CONFIG_HOME", "/etc/anna", 1);
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(ConfigHome(), "/etc/anna");
    EXPECT_EQ(DataHome(), "/home/anna/.local/share");
    setenv("XDG_CONFIG_HOME", "relative", 1);
    EXPECT_EQ(ConfigHome(), "/home/anna/.config");
    EXPECT_EQ(ExecutablePath().filename(), "test_platform_system");
}

TEST(Paths, DeletesTheFilesOfAPatternAndNothingElse) {
    const support::TemporaryFolder folder;
    for (const char* name : {"tmp_1.rtf", "TMP.x", "tmp", "atmp.x", "a.tmp", "b.TMP", "c.tmp1"}) {
        WriteFileAtomically(folder / name, "");
    }
    fs::create_directory(folder / "tmp.d");
    DeleteMatching(folder.Path(), "tmp*.*");
    EXPECT_EQ(Names(folder.Path()),
              (std::vector<std::string>{"a.tmp", "atmp.x", "b.TMP", "c.tmp1", "tmp", "tmp.d"}));
    DeleteMatching(folder.Path(), "?.tmp");
    EXPECT_EQ(Names(folder.Path()), (std::vector<std::string>{"atmp.x", "c.tmp1", "tmp", "tmp.d"}));
    EXPECT_NO_THROW(DeleteMatching(folder / "missing", "*"));
}

TEST(Files, AReplacedFileIsWholePrivateAndAlone) {
    const support::TemporaryFolder folder;
    const fs::path file = folder / "notes";
    const std::string big(200'000, 'x');
    WriteFileAtomically(file, "old");
    WriteFileAtomically(file, big + std::string("\0end", 4));
    EXPECT_EQ(ReadWholeFile(file), big + std::string("\0end", 4));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(Names(folder.Path()), std::vector<std::string>{"notes"});
    WriteFileAtomically(file, "", fs::perms(0644));
    EXPECT_EQ(ReadWholeFile(file), "");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0644));
}

TEST(Files, ALinkStaysALinkToTheNewContents) {
    const support::TemporaryFolder folder;
    fs::create_directory(folder / "real");
    WriteFileAtomically(folder / "real/file", "old");
    fs::create_symlink(folder / "real/file", folder / "link");
    WriteFileAtomically(folder / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(ReadWholeFile(folder / "real/file"), "new");
}

TEST(Files, FailuresSayWhyAndLeaveThingsAsTheyWere) {
    const support::TemporaryFolder folder;
    fs::create_directory(folder / "full");
    WriteFileAtomically(folder / "full/file", "kept");
    EXPECT_THROW(WriteFileAtomically(folder / "missing/file", "x"), Error);
    EXPECT_THROW(WriteFileAtomically(folder / "full", "x"), Error);
    EXPECT_EQ(Names(folder.Path()), std::vector<std::string>{"full"});
    EXPECT_EQ(ReadWholeFile(folder / "full/file"), "kept");
    EXPECT_THROW(ReadWholeFile(folder / "full"), Error);
    try {
        ReadWholeFile(folder / "missing");
        FAIL() << "a missing file was read";
    } catch (const Error& error) {
        EXPECT_EQ(std::string(error.what()),
                  "Can't read " + (folder / "missing").string() + ": No such file or directory.");
    }
}

} // namespace
} // namespace platform
