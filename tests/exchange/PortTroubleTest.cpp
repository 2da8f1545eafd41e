// Exports and imports that are stopped, or find no room or no permission.
#include "exchange/FinExport.h"
#include "exchange/PortFixture.h"
#include "platform/values/Errors.h"

namespace {

using namespace tests;

class PortTroubleTest : public PortTest {};

TEST_F(PortTroubleTest, GivesUpALineWhoseQuoteIsNeverClosed) {
    constexpr std::size_t kMegabyte = 1 << 20;
    WriteText(PathTo("database.csv"), kRooms + "\"Record\",1,\"5\" pipe\",\"/Record\"\n" +
                                          std::string(70 * kMegabyte, 'x'));
    const ImportOutcome outcome = Import(ImportMode::Test);
    EXPECT_EQ(outcome.error,
              "the line is longer than 64 MB; the closing quote of a text may be missing.");
    EXPECT_EQ(outcome.line, 3);
}

TEST_F(PortTroubleTest, NeverReplacesTheDatabaseByAnExport) {
    Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'old')");
    std::filesystem::create_symlink("Vestrel.mdb", PathTo("link.csv"));
    const std::vector<std::string> before = Dump();
    for (const char* const own : {"Vestrel.mdb", "Vestrel.mdb-wal", "Vestrel.mdb-journal",
                                  "Version", "BaR.cfg", "Notes.txt", "link.csv"}) {
        EXPECT_THROW(WriteTables(std::vector<std::string>{"Room"}, PathTo(own), {}),
                     platform::Error)
            << own;
        EXPECT_THROW(RunFinExport({.accounts = {1}}, PathTo(own)), platform::Error) << own;
    }
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(ReadText(PathTo("Version")), "9");
    std::filesystem::create_directory(PathTo("elsewhere"));
    WriteTables(std::vector<std::string>{"Room"}, PathTo("elsewhere/Notes.txt"), {});
}

TEST_F(PortTroubleTest, SurvivesAStopAtEveryStep) {
    Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'old')");
    WriteText(PathTo("database.csv"), kRooms +
                                          "\"Record\",2,\"a\",\"/Record\"\n"
                                          "\"Record\",3,\"b\",\"/Record\"\n");
    const std::vector<std::string> before = Dump();
    std::vector<std::string> after;
    int whole = 0;
    StopAtEveryStep(
        Folder(), [&] { Import(ImportMode::Write, ImportRows::Overwrite); },
        [&](bool wasStopped) {
            const std::vector<std::string> found = Dump();
            if (found != before) {
                if (after.empty()) after = found;
                EXPECT_EQ(found, after);
                EXPECT_EQ(found.size(), before.size() + 1);
                ++whole;
            }
            if (!wasStopped) {
                EXPECT_GT(whole, 0);
            }
        });
    // An export is there whole, or the former file is.
    MakeFile("database.csv", "the former one");
    StopAtEveryStep(
        Folder(), [this] { ExportAll(); },
        [this](bool wasStopped) {
            const std::string file = ReadText(PathTo("database.csv"));
            EXPECT_TRUE(file == "the former one" || file.ends_with("\"/Record\"\r\n"));
            if (!wasStopped) {
                EXPECT_NE(file, "the former one");
            }
        });
}

TEST_F(PortTroubleTest, SaysThatBooksCanOnlyBeRead) {
    core::App().Connection.Close();
    core::App().Connection.Open(core::App().DbFile, platform::OpenMode::ReadOnly);
    WriteText(PathTo("database.csv"), kRooms + "\"Record\",1,\"new\",\"/Record\"\n");
    EXPECT_TRUE(Import(ImportMode::Test).Succeeded());
    EXPECT_EQ(Import(ImportMode::Write, ImportRows::Overwrite).error,
              "These books can only be read.");
    EXPECT_EQ(NamesIn(Folder()).find("before import"), std::string::npos);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Room"), "0");
}

TEST_F(PortTroubleTest, ImportsNothingOnAFullDisk) {
    Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'old')");
    std::string file = kRooms;
    for (int i = 0; i < 9000; ++i)
        file += fmt::format("\"Record\",{},\"{}\",\"/Record\"\n", i + 2, std::string(90, 'r'));
    WriteText(PathTo("database.csv"), file);
    // Not enough for the copy of the database; and enough for that, but not for the records.
    for (const std::size_t room : {100'000U, 450'000U}) {
        WriteText(PathTo("outcome"), "");
        WithLittleRoom(room, [this] {
            const ImportOutcome outcome = Import(ImportMode::Write, ImportRows::Overwrite);
            WriteText(PathTo("outcome"), outcome.error);
        });
        EXPECT_NE(ReadText(PathTo("outcome")), "") << room;
        EXPECT_EQ(Ask("SELECT Count(*) FROM Room"), "1") << room;
    }
}

TEST_F(PortTroubleTest, LeavesNoHalfFileOnAFullDisk) {
    for (int i = 0; i < 20; ++i)
        Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'a room of some size')");
    MakeFile("database.csv", "the former one");
    core::App().Connection.Close();
    WithLittleRoom(600, [this] { ExportAll(); });
    EXPECT_EQ(ReadText(PathTo("database.csv")), "the former one");
    EXPECT_EQ(NamesIn(Folder()).find("database.csv."), std::string::npos);
}

} // namespace
