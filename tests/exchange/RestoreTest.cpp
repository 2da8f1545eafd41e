#include "exchange/Restore.h"

#include "core/CoreFixture.h"
#include "exchange/Container.h"
#include "exchange/Stops.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace {

using namespace tests;
namespace fs = std::filesystem;
using namespace exchange;

/// A container with the books, a template, and a file that two records name.
class RestoreTest : public CoreBooks {
  protected:
    RestoreTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (1, 'First Bank')");
        MakeFile("lease.rtf", "Dear tenant");
        MakeFile("house.jpg", std::string(1000, 'j'));
        platform::SetChangedAt(PathTo("lease.rtf"), {platform::Date(2024, 2, 29), 3661});
        std::string result;
        PackDatabase(Container(), PathTo("Vestrel.mdb"), {}, result);
        PackFile(Container(), PathTo("Version"), FileType::Database, result);
        PackFile(Container(), PathTo("lease.rtf"), FileType::Document, result);
        PackFile(Container(), PathTo("house.jpg"), FileType::FileObject, result);
        PackFile(Container(), PathTo("house.jpg"), FileType::FileObject, result);
        EXPECT_EQ(result, "Success");
    }

    fs::path Container() const { return Folder() / "Vestrel.0.vbk"; }
    fs::path To() const { return Folder() / "restored"; }

    RestoreReport Restore(RestoreScope scope = RestoreScope::Everything) {
        return RestoreContainer(Container(), To(), scope, {});
    }
};

TEST_F(RestoreTest, BringsEveryFileBack) {
    const RestoreReport report = Restore();
    EXPECT_TRUE(report.IsWhole());
    EXPECT_EQ(NamesIn(To()), "Documents Files Version Vestrel.mdb");
    const fs::path document = To() / "Documents" / fs::path(PathTo("lease.rtf")).relative_path();
    EXPECT_EQ(ReadText(document), "Dear tenant");
    EXPECT_EQ(platform::ChangedAt(document).day, platform::Date(2024, 2, 29));
    EXPECT_EQ(platform::ChangedAt(document).second, 3661);
    EXPECT_EQ(report.files.size(), 4U) << "the file of two records is restored once";
    platform::Connection books;
    books.Open(To() / "Vestrel.mdb", platform::OpenMode::ReadOnly);
    EXPECT_EQ(books.Scalar("SELECT ShowAs FROM Account")->AsText(), "First Bank");
    EXPECT_THROW(Restore(), platform::Error) << "never over anything";
    fs::remove_all(To());
    Restore(RestoreScope::DatabaseOnly);
    EXPECT_EQ(NamesIn(To()), "Version Vestrel.mdb");
}

TEST_F(RestoreTest, TellsWhatIsWholeAndWhatIsCutAtEveryHeader) {
    const std::string whole = ReadText(Container());
    const std::vector<ContainerEntry> entries = ListContainer(Container());
    ASSERT_EQ(entries.size(), 5U);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto begin = static_cast<std::size_t>(entries[i].position);
        const std::size_t data = begin + kHeaderSize;
        const auto size = static_cast<std::size_t>(entries[i].header.fileSize);
        const struct {
            std::size_t length;
            std::size_t entries;
            EntryState last;
        } cuts[] = {
            {begin, i, EntryState::Whole},
            {begin + 1, i + 1, EntryState::Cut},
            {data - 1, i + 1, EntryState::Cut},
            {data, i + 1, EntryState::Cut},
            {data + size - 1, i + 1, EntryState::Cut},
            {data + size, i + 1, EntryState::Whole},
        };
        for (const auto& cut : cuts) {
            WriteText(Container(), whole.substr(0, cut.length));
            if (cut.length == 0) {
                EXPECT_THROW(ListContainer(Container()), platform::Error);
                continue;
            }
            const std::vector<ContainerEntry> found = ListContainer(Container());
            ASSERT_EQ(found.size(), cut.entries) << cut.length;
            EXPECT_EQ(found.back().state, cut.last) << cut.length;
            for (std::size_t before = 0; before + 1 < found.size(); ++before)
                EXPECT_EQ(found[before].state, EntryState::Whole);
            fs::remove_all(To());
            if (i == 0 && cut.last == EntryState::Cut) {
                EXPECT_THROW(Restore(), platform::Error) << "there is nothing whole in it";
                EXPECT_FALSE(fs::exists(To()));
                continue;
            }
            const RestoreReport report = Restore();
            EXPECT_TRUE(report.hasDatabase && report.faults.empty());
            // The last entry is a file that is in the container once more.
            const bool isKnown = i == 4 && cut.length > begin + kFilePathSize;
            EXPECT_EQ(report.IsWhole(), cut.last == EntryState::Whole || isKnown) << cut.length;
        }
    }
}

TEST_F(RestoreTest, ListsItAsCsv) {
    std::string container = ReadText(Container());
    WriteText(Container(), container.substr(0, container.size() - 1));
    const std::string csv = ListAsCsv(ListContainer(Container()));
    EXPECT_TRUE(csv.starts_with(
        "\"FilePath\",\"FileType\",\"FileSize\",\"DataPosition\",\"FileDate\",\"State\"\n\"" +
        PathTo("Vestrel.mdb") + "\",1,"))
        << csv;
    EXPECT_NE(csv.find(PathTo("lease.rtf") + "\",2,11,"), std::string::npos);
    EXPECT_NE(csv.find(",\"02/29/2024 01:01:01\",\"whole\"\n"), std::string::npos);
    EXPECT_TRUE(csv.ends_with("\"cut\"\n"));
}

TEST_F(RestoreTest, RefusesPathsThatClimbOut) {
    support::ForEachCase(VESTREL_TEST_DATA "/backup.cases", "places",
                         [](const support::Case& each) {
                             EntryHeader header;
                             header.filePath = each["path"];
                             header.fileType = each.Number<std::int16_t>("type");
                             EXPECT_EQ(PlaceOf(header), each["place"]);
                         });
    // The other entries of such a container are restored, and the fault is reported.
    EntryHeader climbing{
        .filePath = "/a/../../../out",
        .fileType = 3,
        .format = 2,
        .fileSize = 3,
        .dataPosition = static_cast<std::int32_t>(fs::file_size(Container())) + 501,
        .fileDate = ""};
    WriteText(Container(), ReadText(Container()) + HeaderBytes(climbing) + "abc");
    const RestoreReport report = Restore();
    EXPECT_FALSE(report.IsWhole());
    EXPECT_EQ(report.files.back().reason, "its path leads out of the folder");
    EXPECT_TRUE(report.hasDatabase);
    EXPECT_FALSE(fs::exists(Folder() / "out"));
}

TEST_F(RestoreTest, ChecksTheDatabaseAndRefusesOtherFiles) {
    std::string container = ReadText(Container());
    const auto page = kHeaderSize + 4096 * 2;
    container.replace(page, 2000, std::string(2000, '\x11'));
    WriteText(Container(), container);
    const RestoreReport report = Restore();
    EXPECT_TRUE(report.hasDatabase);
    EXPECT_FALSE(report.faults.empty());
    EXPECT_FALSE(report.IsWhole());
    for (const std::string& text : {std::string(), std::string(2000, 'x')}) {
        WriteText(Container(), text);
        EXPECT_THROW(ListContainer(Container()), platform::Error);
    }
    EXPECT_THROW(ListContainer(Folder() / "nothing"), platform::Error);
}

} // namespace
