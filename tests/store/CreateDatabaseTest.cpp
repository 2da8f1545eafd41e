#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <thread>

#include "platform/system/Paths.h"
#include "store/CreateDatabase.h"
#include "store/TransCategories.h"
#include "support/Books.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

std::vector<std::string> NamesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

void Write(const fs::path& file, std::string_view text) {
    std::ofstream(file) << text;
}

fs::perms ModeOf(const fs::path& path) {
    return fs::status(path).permissions() & fs::perms::all;
}

TEST(CreateDatabase, MakesTheFoldersAndKeepsAllPrivate) {
    const support::TemporaryFolder folder;
    const fs::path books = folder / "new/books";
    store::CreateDatabase(books);
    EXPECT_THAT(NamesIn(books), testing::UnorderedElementsAre("Vestrel.mdb", "Version"));
    EXPECT_EQ(platform::ReadWholeFile(books / "Version"), "9");
    EXPECT_EQ(ModeOf(folder / "new"), fs::perms::owner_all);
    EXPECT_EQ(ModeOf(books), fs::perms::owner_all);
    const fs::perms readAndWrite = fs::perms::owner_read | fs::perms::owner_write;
    EXPECT_EQ(ModeOf(books / "Vestrel.mdb"), readAndWrite);
    EXPECT_EQ(ModeOf(books / "Version"), readAndWrite);
}

TEST(CreateDatabase, RefusesWhateverHasItsName) {
    struct Case {
        const char* what;
        void (*make)(const fs::path&);
    };
    const Case cases[] = {
        {"a file", [](const fs::path& path) { Write(path, "mine"); }},
        {"a folder", [](const fs::path& path) { fs::create_directory(path); }},
        {"a link to nothing", [](const fs::path& path) { fs::create_symlink("gone", path); }},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const support::TemporaryFolder folder;
        const fs::path file = folder / "Vestrel.mdb";
        each.make(file);
        EXPECT_THROW(store::CreateDatabase(folder.Path()), platform::Error);
        EXPECT_THAT(NamesIn(folder.Path()), testing::ElementsAre("Vestrel.mdb"));
        if (fs::is_regular_file(file)) {
            EXPECT_EQ(platform::ReadWholeFile(file), "mine");
        }
    }
}

TEST(CreateDatabase, RefusesASecondTimeAndLeavesTheFirst) {
    const support::TemporaryFolder folder;
    store::CreateDatabase(folder.Path());
    const std::string before = platform::ReadWholeFile(folder / "Vestrel.mdb");
    EXPECT_THROW(store::CreateDatabase(folder.Path()), platform::Error);
    EXPECT_EQ(platform::ReadWholeFile(folder / "Vestrel.mdb"), before);
}

TEST(CreateDatabase, LeavesNothingBehindWhenItFails) {
    const support::TemporaryFolder folder;
    fs::create_directories(folder / "Version/in use"); // where the version's file should go
    EXPECT_THROW(store::CreateDatabase(folder.Path()), platform::Error);
    EXPECT_THAT(NamesIn(folder.Path()), testing::ElementsAre("Version"));

    Write(folder / "file", "mine");
    EXPECT_THROW(store::CreateDatabase(folder / "file"), platform::Error);
    EXPECT_THROW(store::CreateDatabase(folder / "file/books"), platform::Error);
    const std::string tooLong(300, 'x');
    EXPECT_THROW(store::CreateDatabase(folder / ("new/" + tooLong)), platform::Error);
    EXPECT_THAT(NamesIn(folder.Path()), testing::UnorderedElementsAre("Version", "file"));
}

/// Makes the books in several programs at the same time; returns how many of them could.
int MakeTogether(const fs::path& folder) {
    std::atomic<int> made = 0;
    std::vector<std::jthread> programs;
    for (int i = 0; i < 4; ++i) {
        programs.emplace_back([&] {
            try {
                store::CreateDatabase(folder);
                ++made;
            } catch (const platform::Error& error) {
                EXPECT_THAT(error.what(), testing::EndsWith("already exists"));
            }
        });
    }
    programs.clear();
    return made;
}

TEST(CreateDatabase, MakesWholeBooksForOneOfSeveralPrograms) {
    const support::TemporaryFolder folder;
    for (int i = 0; i < 5; ++i) {
        const fs::path books = folder / std::to_string(i) / "books";
        EXPECT_EQ(MakeTogether(books), 1);
        EXPECT_THAT(NamesIn(books), testing::UnorderedElementsAre("Vestrel.mdb", "Version"));
        platform::Connection opened;
        opened.Open(books / "Vestrel.mdb");
        EXPECT_EQ(support::Rows(opened, "SELECT Count(*) FROM TransCategory"), std::vector{"26"s});
    }
}

TEST(NewFolder, IsRemovedOnlyWithoutTheFilesOfOthers) {
    const support::TemporaryFolder folder;
    const fs::path theirs = folder / "new/theirs";
    for (const auto files : {store::UnkeptFiles::Stay, store::UnkeptFiles::AreRemoved}) {
        {
            const store::NewFolder made(folder / "new/mine", files);
            Write(folder / "new/mine/half", "half");
            fs::create_directory(theirs);
        }
        EXPECT_TRUE(fs::exists(theirs));
        EXPECT_EQ(fs::exists(folder / "new/mine/half"), files == store::UnkeptFiles::Stay);
        fs::remove_all(folder / "new");
    }
}

TEST(CreateDatabase, GoesOverADraftThatACrashLeft) {
    const support::TemporaryFolder folder;
    Write(folder / "Vestrel.mdb.new", "half a database");
    Write(folder / "Vestrel.mdb.new-wal", "half a log");
    Write(folder / "Vestrel.mdb.lock", "");
    store::CreateDatabase(folder.Path());
    EXPECT_THAT(NamesIn(folder.Path()), testing::UnorderedElementsAre("Vestrel.mdb", "Version"));
}

TEST(CreateDatabase, GivesNoDraftItsNameThatWasNotWrittenToTheDiskWhole) {
    const support::TemporaryFolder folder;
    store::NewDatabase database(folder.Path());
    Write(folder / "Vestrel.mdb.new-wal", "what could not be written back");
    EXPECT_THROW(database.Publish(), platform::Error);
    EXPECT_FALSE(fs::exists(folder / "Vestrel.mdb"));
}

class Categories : public testing::Test {
  protected:
    Categories() {
        store::CreateDatabase(folder_.Path());
        books_.Open(folder_ / "Vestrel.mdb");
    }

    std::vector<std::string> Rows() {
        return support::Rows(books_, "SELECT Category, IEN FROM TransCategory");
    }

    support::TemporaryFolder folder_;
    platform::Connection books_;
};

TEST_F(Categories, AreSeededInTheirOrder) {
    const std::vector<std::string> rows = Rows();
    ASSERT_EQ(rows.size(), 26U);
    EXPECT_EQ(rows.front(), "Rent Payment|0");
    EXPECT_EQ(rows[4], "Laundry|0");
    EXPECT_EQ(rows[5], "Insurance|1");
    EXPECT_EQ(rows[22], "Mortgage Payoff|1");
    EXPECT_EQ(rows.back(), "Mortgage Escrow|2");
}

TEST_F(Categories, ComeBackWithoutTouchingTheUsersOwn) {
    books_.Execute("DELETE * FROM TransCategory WHERE Category = 'Repairs'");
    books_.Execute("UPDATE TransCategory SET IEN = 1 WHERE Category = 'Vending'");
    books_.Execute("INSERT INTO TransCategory (Category, IEN) VALUES ('Gifts', 2)");
    store::InitTransCategories(books_);
    store::InitTransCategories(books_);
    const std::vector<std::string> rows = Rows();
    ASSERT_EQ(rows.size(), 27U);
    EXPECT_EQ(rows[25], "Gifts|2");
    EXPECT_EQ(rows[26], "Repairs|1");
    EXPECT_THAT(rows, testing::Contains("Vending|1"));
}

} // namespace
