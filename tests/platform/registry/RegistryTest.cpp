#include "platform/registry/Registry.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <string>

#include "platform/system/Paths.h"
#include "support/TemporaryFolder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr const char* kKey = R"(SOFTWARE\Vestrel\Global\Preferences)";

enum class Kind { Json, Memory };

class AnyRegistry : public testing::TestWithParam<Kind> {
  protected:
    support::TemporaryFolder folder_;
    std::unique_ptr<Registry> registry_ = GetParam() == Kind::Json
                                              ? OpenJsonRegistry(folder_ / "a/b/registry.json")
                                              : MakeMemoryRegistry();
};

INSTANTIATE_TEST_SUITE_P(Kinds, AnyRegistry, testing::Values(Kind::Json, Kind::Memory));

TEST_P(AnyRegistry, KeepsTextsAndNumbersUnderNamesOfAnyCase) {
    EXPECT_EQ(registry_->ReadText(kKey, "Name"), std::nullopt);
    EXPECT_TRUE(registry_->WriteText(kKey, R"(Reports\ColWrap)", "True"));
    EXPECT_TRUE(registry_->WriteNumber(kKey, "AutoSize", std::numeric_limits<int>::min()));
    EXPECT_TRUE(registry_->WriteText("other", "AutoSize", ""));
    EXPECT_EQ(registry_->ReadText(R"(software\vestrel\global\PREFERENCES)", R"(reports\colwrap)"),
              "True");
    EXPECT_EQ(registry_->ReadNumber(kKey, "AUTOSIZE"), std::numeric_limits<int>::min());
    EXPECT_EQ(registry_->ReadText("OTHER", "autosize"), "");

    EXPECT_TRUE(registry_->WriteText(kKey, R"(REPORTS\COLWRAP)", "False"));
    EXPECT_EQ(registry_->ReadText(kKey, R"(Reports\ColWrap)"), "False");
}

TEST_P(AnyRegistry, WritesSeveralTextsInOneStep) {
    registry_->WriteText("a", "one", "old");
    EXPECT_TRUE(registry_->WriteTexts(
        std::array{RegistryText{"A", "ONE", "1"}, RegistryText{"b", "two", "2"}}));
    EXPECT_EQ(registry_->ReadText("a", "one"), "1");
    EXPECT_EQ(registry_->ReadText("b", "two"), "2");
    EXPECT_FALSE(registry_->IsDamaged());
}

TEST(JsonRegistryFile, IsWrittenOnceForSeveralTextsAndNotAtAllForNoChange) {
    const support::TemporaryFolder folder;
    const auto registry = OpenJsonRegistry(folder / "registry.json");
    const std::array texts{RegistryText{"a", "one", "1"}, RegistryText{"b", "two", "2"}};
    EXPECT_TRUE(registry->WriteTexts(texts));
    const auto written = fs::last_write_time(folder / "registry.json");
    fs::last_write_time(folder / "registry.json", written - std::chrono::hours(1));
    EXPECT_TRUE(registry->WriteTexts(texts));
    EXPECT_LT(fs::last_write_time(folder / "registry.json"), written);
}

TEST_P(AnyRegistry, ANumberIsNoTextAndATextNoNumber) {
    registry_->WriteText(kKey, "a", "5");
    registry_->WriteNumber(kKey, "b", 5);
    EXPECT_EQ(registry_->ReadNumber(kKey, "a"), std::nullopt);
    EXPECT_EQ(registry_->ReadText(kKey, "b"), std::nullopt);
    registry_->WriteNumber(kKey, "a", 6);
    EXPECT_EQ(registry_->ReadNumber(kKey, "a"), 6);
    EXPECT_EQ(registry_->ReadText(kKey, "a"), std::nullopt);
}

TEST_P(AnyRegistry, KeepsEveryCharacter) {
    constexpr char kText[] = "Van\1Vanity\1\"quoted\" \\ \n\t\0 Žofie \xF0\x9F\x8F\xA0";
    const std::string text(kText, sizeof kText - 1);
    EXPECT_TRUE(registry_->WriteText(kKey, "", text));
    EXPECT_EQ(registry_->ReadText(kKey, ""), text);
}

TEST(JsonRegistry, SeesWhatAnotherProcessWrote) {
    const support::TemporaryFolder folder;
    const auto ours = OpenJsonRegistry(folder / "registry.json");
    const auto theirs = OpenJsonRegistry(folder / "registry.json");
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(theirs->WriteNumber(kKey, "n", i));
        ASSERT_EQ(ours->ReadNumber(kKey, "n"), i);
        ASSERT_TRUE(ours->WriteNumber(kKey, "m", i));
        ASSERT_EQ(theirs->ReadNumber(kKey, "n"), i);
        ASSERT_EQ(theirs->ReadNumber(kKey, "m"), i);
    }
    fs::remove(folder / "registry.json");
    EXPECT_EQ(ours->ReadNumber(kKey, "n"), std::nullopt);
}

TEST(JsonRegistry, IsPrivateToTheUser) {
    const support::TemporaryFolder folder;
    ASSERT_TRUE(OpenJsonRegistry(folder / "Vestrel/registry.json")->WriteText(kKey, "a", "b"));
    EXPECT_EQ(fs::status(folder / "Vestrel").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(folder / "Vestrel/registry.json").permissions(), fs::perms(0600));
}

TEST(JsonRegistry, ADamagedFileReadsAsEmptyAndIsPutAsideByTheFirstWrite) {
    for (const char* damage : {"", "{\"SOFTWARE\": {\"a\": \"b\"", "[1, 2]", "\xFF\xFE", "null"}) {
        const support::TemporaryFolder folder;
        const auto file = folder / "registry.json";
        const auto aside = folder / "registry.json.damaged";
        WriteFileAtomically(file, damage);
        const auto registry = OpenJsonRegistry(file);
        EXPECT_EQ(registry->ReadText("SOFTWARE", "a"), std::nullopt) << damage;
        EXPECT_FALSE(fs::exists(aside)) << damage;
        EXPECT_TRUE(registry->WriteText("SOFTWARE", "c", "d")) << damage;
        EXPECT_EQ(ReadWholeFile(aside), damage);
        EXPECT_EQ(registry->ReadText("SOFTWARE", "c"), "d") << damage;
        EXPECT_TRUE(registry->WriteText("SOFTWARE", "e", "f")) << damage;
        EXPECT_EQ(ReadWholeFile(aside), damage);
    }
}

TEST(JsonRegistry, ValuesOfNoKnownKindReadAsMissingAndOutliveAWrite) {
    const support::TemporaryFolder folder;
    const auto file = folder / "registry.json";
    WriteFileAtomically(file, R"({"k": {"big": 2147483648, "small": -2147483649, "half": 0.5,
        "yes": true, "list": [1], "huge": 99999999999999999999}, "flat": 7, "FLAT2": "x"})");
    const auto registry = OpenJsonRegistry(file);
    for (const char* name : {"big", "small", "half", "yes", "list", "huge"}) {
        EXPECT_EQ(registry->ReadNumber("k", name), std::nullopt) << name;
        EXPECT_EQ(registry->ReadText("k", name), std::nullopt) << name;
    }
    EXPECT_EQ(registry->ReadNumber("flat", ""), std::nullopt);
    EXPECT_TRUE(registry->WriteNumber("flat", "n", 1));
    EXPECT_EQ(registry->ReadNumber("flat", "n"), 1);
    EXPECT_NE(ReadWholeFile(file).find("2147483648"), std::string::npos);
}

TEST(JsonRegistry, AWriteThatFailsLeavesTheStoreAsItWas) {
    const support::TemporaryFolder folder;
    const auto file = folder / "registry.json";
    const auto registry = OpenJsonRegistry(file);
    ASSERT_TRUE(registry->WriteText(kKey, "a", "old"));
    const std::string before = ReadWholeFile(file);

    EXPECT_FALSE(registry->WriteText(kKey, "a", "no UTF-8: \xFF"));
    EXPECT_EQ(ReadWholeFile(file), before);

    // A full disk, played by a limit on the size of files.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    rlimit tiny = usual;
    tiny.rlim_cur = 10;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    const bool written = registry->WriteText(kKey, "a", "new");
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &usual), 0);
    EXPECT_FALSE(written);
    EXPECT_EQ(ReadWholeFile(file), before);
    EXPECT_EQ(registry->ReadText(kKey, "a"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(JsonRegistry, AStoreThatCantBeReachedReadsAsEmptyAndRefusesWrites) {
    const support::TemporaryFolder folder;
    WriteFileAtomically(folder / "file", "");
    fs::create_directory(folder / "folder");
    for (const auto& file : {folder / "file/registry.json", folder / "folder"}) {
        const auto registry = OpenJsonRegistry(file);
        EXPECT_EQ(registry->ReadText(kKey, "a"), std::nullopt) << file;
        EXPECT_FALSE(registry->WriteText(kKey, "a", "b")) << file;
    }
    if (geteuid() == 0) return; // to root no folder is closed
    fs::permissions(folder / "folder", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(OpenJsonRegistry(folder / "folder/registry.json")->WriteText(kKey, "a", "b"));
    fs::permissions(folder / "folder", fs::perms::owner_all);
}

TEST(TheRegistry, IsTheFileBelowTheConfigurationHomeUnlessReplaced) {
    const support::TemporaryFolder folder;
    setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1);
    SetRegistry(nullptr);
    EXPECT_TRUE(TheRegistry().WriteText(kKey, "a", "file"));
    EXPECT_TRUE(fs::exists(folder / "Vestrel/registry.json"));
    SetRegistry(MakeMemoryRegistry());
    EXPECT_EQ(TheRegistry().ReadText(kKey, "a"), std::nullopt);
    SetRegistry(nullptr);
    EXPECT_EQ(TheRegistry().ReadText(kKey, "a"), "file");
}

} // namespace
} // namespace platform
