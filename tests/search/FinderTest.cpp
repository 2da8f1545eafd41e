#include "search/Finder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "core/NotifyAll.h"
#include "core/RecordsFixture.h"
#include "platform/database/Recordset.h"
#include "search/SourceRow.h"
#include "support/Cases.h"
#include "support/Words.h"

namespace {

using search::Finder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace fs = std::filesystem;

constexpr std::size_t kMost = 50;

class FinderTest : public tests::CoreRecords {
  protected:
    FinderTest() {
        for (const auto* sql :
             {"INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, "
              "Amount, CheckNum, TaxCategory, Description) VALUES (90, '05/01/2024', 'Smith', "
              "'River Bank', 1050, '4711', 'Rents', 'Rent for May')",
              "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, "
              "Amount, CheckNum) VALUES (91, '05/02/2024', 'River Bank', 'Ace', 10.5, '1050')",
              "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, "
              "Amount) VALUES (92, '05/03/2024', 'River Bank', 'Ace', 1050.25)",
              "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, "
              "Amount) VALUES (93, '05/03/2024', 'River Bank', 'Ace', 10500)",
              "UPDATE Tenant SET Notes = 'Plays the oboe', SSN = '123456789' WHERE IdTenant = 31",
              "INSERT INTO Contact (IdContact, dbType, IdRelated, Description, FirstName, "
              "LastName) VALUES (95, 1, 60, 'Clerk', 'Una', 'Quill')",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, "
              "Category, Amount, Flags) VALUES (96, 40, 0, '05/01/2024', 1, 'Late Fee', 37.5, 1)",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, "
              "Category, Amount, Flags) VALUES (97, 40, 90, '04/01/2024', 1, 'Late Fee', 61, 1)"})
            Run(sql);
    }

    static void Read(Finder& finder) {
        for (int steps = 0; !finder.Step(); ++steps)
            ASSERT_LT(steps, 1000);
        ASSERT_FALSE(finder.IsStale());
    }
    /// "Group kind id" of each record, "Group: title" of each item.
    static std::vector<std::string> Find(Finder& finder, std::string_view text,
                                         std::size_t most = kMost) {
        std::vector<std::string> found;
        for (const search::HitGroup& group : finder.Find(text, most)) {
            for (const search::Hit& hit : group.hits) {
                found.push_back(hit.record
                                    ? group.name + ' ' +
                                          std::to_string(core::KindNumber(hit.record->kind)) + ' ' +
                                          std::to_string(hit.record->id)
                                    : group.name + ": " + hit.title);
            }
        }
        return found;
    }
    std::vector<std::string> FindNow(std::string_view text) {
        Finder finder(core::App().Connection);
        Read(finder);
        std::vector<std::string> found = Find(finder, text);
        if (finder.IsStale()) { // the index was damaged where only the search looks
            Read(finder);
            found = Find(finder, text);
        }
        EXPECT_EQ(finder.Notice(), "");
        return found;
    }
    static fs::path File() { return Finder::IndexFile(core::App().Connection); }
};

TEST_F(FinderTest, FindsRecordsByWhatTheyHold) {
    Finder finder(core::App().Connection);
    EXPECT_TRUE(finder.IsStale());
    EXPECT_THAT(Find(finder, "smith"), IsEmpty()) << "nothing is read yet";
    Read(finder);
    support::ForEachCase(VESTREL_TEST_DATA "/records.cases", "records",
                         [&](const support::Case& each) {
                             EXPECT_EQ(Find(finder, each["text"]), support::Split(each["found"]));
                         });
    const std::string longest(10'000, 'z');
    EXPECT_THAT(Find(finder, longest), IsEmpty());
}

TEST_F(FinderTest, FollowsEveryChangeOfTheBooksByWhomeverMade) {
    Finder finder(core::App().Connection);
    Read(finder);
    Run("UPDATE Tenant SET LastName = 'Zorn' WHERE IdTenant = 30");
    EXPECT_TRUE(finder.IsStale());
    Read(finder);
    EXPECT_THAT(Find(finder, "zorn"),
                ElementsAre("Tenants 5 30", "Leases 2 40", "Open Charges 30 96"));
    EXPECT_THAT(Find(finder, "smith"), ElementsAre("Transactions 10 90"));

    const pid_t other = fork(); // another program
    if (other == 0) {
        platform::Connection books;
        books.Open(core::App().Connection.File());
        books.Execute("DELETE FROM Transactions WHERE IdTransaction = 90");
        books.Execute("INSERT INTO Tenant (IdTenant, LastName) VALUES (99, 'Newman')");
        _exit(0);
    }
    waitpid(other, nullptr, 0);
    EXPECT_TRUE(finder.IsStale());
    Read(finder);
    EXPECT_THAT(Find(finder, "smith"), IsEmpty()) << "what was deleted isn't found";
    EXPECT_THAT(Find(finder, "newman"), ElementsAre("Tenants 5 99"));

    {
        platform::UnitOfWork unit(core::App().Connection);
        Run("DELETE FROM Tenant");
    }
    Read(finder);
    EXPECT_THAT(Find(finder, "newman"), ElementsAre("Tenants 5 99")) << "it was rolled back";
}

TEST_F(FinderTest, MakesTheIndexAgainIfItIsMissingDamagedOrOfOtherBooks) {
    const std::vector<std::string> sound = FindNow("smi");
    ASSERT_EQ(sound.size(), 4U);
    EXPECT_TRUE(fs::exists(File()));
    const auto overwrite = [](std::streamoff at, std::size_t length) {
        std::fstream file(File(), std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(at);
        file << std::string(length, '#');
    };
    using Spoil = std::function<void()>;
    int number = 0; // of the spoiling that a failure tells
    for (const Spoil& spoil : std::initializer_list<Spoil>{
             [] { fs::remove(File()); }, [] { std::ofstream(File()) << "not a database"; },
             [] { std::ofstream(File()) << ""; }, [] { fs::resize_file(File(), 4096); },
             [&] { overwrite(0, 100); }, [&] { overwrite(4096, 4096); },
             [&] { overwrite(8192, fs::file_size(File()) - 8192); },
             [] {
                 platform::TextIndex other(File(), search::kLayout); // of other books
                 other.Begin();
                 for (std::int32_t id = 1; id < 50; ++id) {
                     other.Put({.key = search::KeyOf(0, id),
                                .mark = 1,
                                .title = "Smith, Ghost",
                                .detail = "",
                                .target = "5 1 0 0",
                                .words = "smith ghost"});
                 }
                 other.Commit();
             }}) {
        spoil();
        ++number;
        EXPECT_EQ(FindNow("smi"), sound) << number;
        EXPECT_THAT(FindNow("ghost"), IsEmpty());
    }
}

TEST_F(FinderTest, DoesWithoutAFileThatCannotBeUsedAndSaysSo) {
    fs::create_directory(File());
    Finder finder(core::App().Connection);
    Read(finder);
    EXPECT_THAT(Find(finder, "4711"), ElementsAre("Transactions 10 90"));
    EXPECT_THAT(finder.Notice(), HasSubstr("can't be used because"));
    fs::remove(File());

    platform::TextIndex rival(File(), search::kLayout);
    rival.Begin(); // another program reads the books at this moment
    rival.Put({.key = 1, .mark = 0, .title = {}, .detail = {}, .target = {}, .words = "x"});
    Finder second(core::App().Connection);
    Read(second);
    EXPECT_THAT(Find(second, "4711"), ElementsAre("Transactions 10 90"));
    EXPECT_THAT(second.Notice(), HasSubstr("because another program is using it"));
}

TEST_F(FinderTest, WritesNothingBesideBooksThatAreOnlyRead) {
    const fs::path books = core::App().Connection.File();
    core::App().Connection.Open(books, platform::OpenMode::ReadOnly);
    EXPECT_THAT(FindNow("4711"), ElementsAre("Transactions 10 90"));
    EXPECT_FALSE(fs::exists(File()));
}

TEST_F(FinderTest, IsReadByTwoProgramsAtOnce) {
    for (int i = 0; i < 400; ++i) {
        Run("INSERT INTO Tenant (IdTenant, LastName) VALUES (" + std::to_string(2000 + i) +
            ", 'Twin')");
    }
    const fs::path books = core::App().Connection.File();
    core::App().Connection.Close();
    std::vector<pid_t> programs;
    for (int program = 0; program < 3; ++program) {
        programs.push_back(fork());
        if (programs.back() != 0) continue;
        int status = 1;
        try {
            platform::Connection own;
            own.Open(books);
            Finder finder(own);
            while (!finder.Step()) {
            }
            if (finder.Find("twin", 1000).at(0).hits.size() == 400) status = 0;
        } catch (const std::exception&) {
            status = 2;
        }
        _exit(status);
    }
    for (const pid_t program : programs) {
        int status = -1;
        waitpid(program, &status, 0);
        EXPECT_EQ(WEXITSTATUS(status), 0);
    }
    core::App().Connection.Open(books);
    EXPECT_THAT(FindNow("4711"), ElementsAre("Transactions 10 90"));
}

TEST_F(FinderTest, KeepsTheRestIfATableIsMissing) {
    core::App().Connection.RunScript("DROP TABLE WOItem");
    Finder finder(core::App().Connection);
    Read(finder);
    EXPECT_THAT(Find(finder, "4711"), ElementsAre("Transactions 10 90"));
    EXPECT_THAT(finder.Notice(), HasSubstr("Work Order History can't be searched"));
}

TEST_F(FinderTest, OrdersTheHitsAndSaysThatThereAreMore) {
    Run("INSERT INTO Tenant (IdTenant, LastName, Notes) VALUES (300, 'Ash', 'Friend of Smith')");
    Run("INSERT INTO Tenant (IdTenant, LastName, FirstName) VALUES (301, 'Ash', 'Smithy')");
    for (int id = 400; id < 470; ++id) {
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (" + std::to_string(id) + ", 'Gold')");
    }
    Finder finder(core::App().Connection);
    finder.SetItems({{"Commands", "", "Pay Rent", "Database", ""},
                     {"Commands", "", "Rent Smith's car", "", ""},
                     {"Settings", "", "Late Rent", "Preferences", "alert"}});
    Read(finder);
    EXPECT_THAT(
        Find(finder, "smith"),
        ElementsAre("Tenants 5 30", "Tenants 5 301", "Tenants 5 300", "Leases 2 40",
                    "Transactions 10 90", "Open Charges 30 96", "Commands: Rent Smith's car"));
    EXPECT_THAT(Find(finder, "4711 rent"), ElementsAre("Transactions 10 90"));
    EXPECT_THAT(Find(finder, "late rent"), ElementsAre("Settings: Late Rent"));
    EXPECT_THAT(Find(finder, "prefer alert"), ElementsAre("Settings: Late Rent"));
    const auto some = finder.Find("gold", 6);
    ASSERT_EQ(some.size(), 1U);
    EXPECT_EQ(some[0].hits.size(), 6U);
    EXPECT_TRUE(some[0].hasMore);
    EXPECT_EQ(some[0].hits[0].record->id, 469) << "the newest first";
    EXPECT_FALSE(finder.Find("gold", 100)[0].hasMore);
    EXPECT_EQ(finder.Find("gold", 100)[0].hits.size(), 70U);
}

TEST_F(FinderTest, TakesAnyNumberOfARecord) {
    for (const char* const id : {"-2147483648", "-1", "0", "2147483647"})
        Run(std::string("INSERT INTO Tenant (IdTenant, LastName) VALUES (") + id + ", 'Edge')");
    Run("INSERT INTO Tenant (IdTenant, LastName) VALUES (NULL, 'Edge')");
    Run("INSERT INTO Tenant (IdTenant, LastName) VALUES (2147483647, 'Edgeworth')");
    EXPECT_THAT(FindNow("edge"),
                ElementsAre("Tenants 5 2147483647", "Tenants 5 -1", "Tenants 5 -2147483648"))
        << "one without a number would open as a new record; a doubled one opens once";
}

} // namespace
