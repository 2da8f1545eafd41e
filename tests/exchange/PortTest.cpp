#include <random>

#include "exchange/PortFile.h"
#include "exchange/PortFixture.h"
#include "platform/values/Errors.h"
#include "store/Tables.h"
#include "support/Cases.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedDialogs.h"
#include "support/Words.h"

namespace {

using namespace tests;
using namespace exchange;
using platform::Value;

/// Values of every kind, the awkward ones among them.
class Random {
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    Value ValueOf(store::FieldKind kind) {
        if (Pick(8) == 0) return {};
        switch (kind) {
            case store::FieldKind::Long:
            case store::FieldKind::Counter:
                return static_cast<std::int32_t>(Pick(4) == 0 ? -2147483648LL : Pick(1U << 31));
            case store::FieldKind::Integer:
                return static_cast<std::int16_t>(Pick(65536) - 32768);
            case store::FieldKind::Double:
                return Double();
            case store::FieldKind::Currency:
                return platform::Currency::FromScaled(static_cast<std::int64_t>(engine_()) >>
                                                      Pick(62));
            case store::FieldKind::Boolean:
                return Pick(2) == 0;
            default:
                return Text();
        }
    }

    std::int64_t Pick(std::uint64_t below) { return static_cast<std::int64_t>(engine_() % below); }

  private:
    double Double() {
        const double size = std::pow(10.0, static_cast<double>(Pick(600)) - 300);
        return std::uniform_real_distribution<double>(-1, 1)(engine_) * size;
    }

    std::string Text() {
        static const std::vector<std::string> pieces = support::Split(
            "007|\"|\"\"|,|\r\n|\n|/Record|\"/Record\"|#TRUE#|Ünit 4|€|1E+5| |O'Brien|\t|Table|"
            "#01/02/2024#|\xF0\x9F\x8F\xA0||-5|\r|NULL");
        std::string text;
        for (std::int64_t i = Pick(5); i > 0; --i)
            text += pieces[static_cast<std::size_t>(Pick(pieces.size()))];
        return text;
    }

    std::mt19937_64 engine_;
};

void FillWithRandomRows(unsigned seed) {
    Random random(seed);
    platform::UnitOfWork unit(core::App().Connection);
    for (const store::TableDefinition& table : store::BooksTables()) {
        std::string places;
        for (std::size_t i = 0; i < table.fields.size(); ++i)
            places += i == 0 ? "?" : ", ?";
        std::string names;
        for (const store::FieldDefinition& field : table.fields)
            names += (names.empty() ? "[" : ", [") + field.name + "]";
        const bool isConfiguration = table.name == "Configuration";
        for (std::int64_t row = isConfiguration ? 1 : random.Pick(6); row > 0; --row) {
            std::vector<Value> values;
            for (const store::FieldDefinition& field : table.fields)
                values.push_back(random.ValueOf(field.kind));
            core::App().Connection.Execute(
                fmt::format("INSERT INTO [{}] ({}) VALUES ({})", table.name, names, places),
                values);
        }
    }
    unit.Commit();
}

TEST_F(PortTest, BringsEveryTableBackEqual) {
    for (const unsigned seed : {1U, 2U, 3U, 4U, 5U}) {
        FillWithRandomRows(seed);
        const std::vector<std::string> before = Dump();
        ExportAll();
        ASSERT_TRUE(Import(ImportMode::Write, ImportRows::Overwrite).Succeeded()) << status_;
        EXPECT_EQ(Dump(), before) << seed;
        EXPECT_EQ(percent_, 100);
        // The imported rows are exported the same again.
        const std::string first = ReadText(PathTo("database.csv"));
        ExportAll();
        EXPECT_EQ(ReadText(PathTo("database.csv")), first);
        for (const store::TableDefinition& table : store::BooksTables())
            Run("DELETE * FROM " + table.name);
    }
}

TEST_F(PortTest, WritesTablesToTheByte) {
    Run("INSERT INTO Room (IdRoom, IdUnit, RoomType, Phone, Notes) VALUES (4823114, 4822901, "
        "'Bed\"room', True, NULL)");
    Run("INSERT INTO TransCategory (Category, IEN) VALUES ('Last', 2)");
    Run("INSERT INTO RentLog (IdRentLog, Amount) VALUES (1, -0.0501)");
    Run("INSERT INTO RentLog (IdRentLog, Amount) VALUES (2, 1234.5)");
    Run("INSERT INTO OwnerLink (IdOwnerLink, Percent) VALUES (3, 33.25)");
    const std::vector<std::string> tables = {"room", "Lease", "RentLog", "OwnerLink"};
    WriteTables(tables, PathTo("database.csv"), Watcher());
    EXPECT_EQ(ReadText(PathTo("database.csv")), ReadText(VESTREL_TEST_DATA "/expected/tables.csv"));
    EXPECT_EQ(status_,
              "Status: Export completed.\nTotal Tables Written = 3\nTotal Records Written = 4\n");
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{"Castle"}, std::vector<std::string>{"Room", "room"}}) {
        EXPECT_THROW(WriteTables(wrong, PathTo("database.csv"), {}), platform::Error);
    }
}

TEST_F(PortTest, AsksForTablesAndAFile) {
    support::ScriptedDialogs person;
    support::ScriptedChoosers choosers({PathTo("chosen.csv")});
    EXPECT_FALSE(ExportDatabase({}, Watcher()));
    EXPECT_EQ(person.Heard().back().title, "Export Error");
    EXPECT_EQ(person.Heard().back().text,
              "\nYou must select at least one database\ntable for the database export to work.");
    const std::vector<std::string> tables = {"TransCategory"};
    EXPECT_TRUE(ExportDatabase(tables, Watcher()));
    EXPECT_EQ(choosers.Asked().back().title, "Select Export File");
    EXPECT_EQ(choosers.Asked().back().start, "database.csv");
    EXPECT_TRUE(std::filesystem::exists(PathTo("chosen.csv")));
    EXPECT_FALSE(ExportDatabase(tables, Watcher())) << "cancelled";
    EXPECT_EQ(person.Heard().back().text,
              "The export was cancelled due to no file name being specified.");
}

TEST_F(PortTest, TellsEachErrorWithItsLine) {
    const std::vector<std::string> before = Dump();
    const auto check = [&](const std::string& file, int line, const std::string& error) {
        WriteText(PathTo("database.csv"), file);
        const ImportOutcome outcome = Import(ImportMode::Write, ImportRows::Overwrite);
        EXPECT_EQ(outcome.error, error);
        EXPECT_EQ(outcome.line, line);
        EXPECT_EQ(status_,
                  fmt::format("Status: An error occured with the import file at line {}\n", line));
        EXPECT_EQ(Dump(), before);
    };
    support::ForEachCase(VESTREL_TEST_DATA "/port.cases", "faults", [&](const support::Case& each) {
        check(each["file"], each.Number<int>("line"), each["error"]);
    });
    check("\xFF\xFET", 1, "the file is UTF-16 text. Save it as UTF-8 and import it again.");
    std::filesystem::remove(PathTo("database.csv"));
    support::ScriptedDialogs person;
    Import(ImportMode::Test, ImportRows::Append, ImportMessages::Show);
    ASSERT_EQ(person.Heard().size(), 1U);
    EXPECT_EQ(person.Heard().back().title, "Import Error");
    EXPECT_EQ(person.Heard().back().text,
              "An error occured while reading the import file, input file could not be found.");
}

TEST_F(PortTest, ReadsFilesOfOtherMakes) {
    const struct {
        std::string file;
        std::string type; ///< of the room
    } cases[] = {
        {"\xEF\xBB\xBF" + kRooms +
             "\"Record\",1,\"K\xC3\xBC"
             "che\",\"/Record\"\n",
         "K\xC3\xBC"
         "che"},
        {kRooms + "\"Record\",1,\"K\xFC"
                  "che \x80\",\"/Record\"",
         "K\xC3\xBC"
         "che \xE2\x82\xAC"},
        {"table,room,/table,,\r\nfields,idroom,roomtype,/fields,\r\nrecord, 1 ,Bed "
         "room,/record\r\n",
         "Bed room"},
        {"\"Table\",\"Room\",\"/Table\",\"\",\"\"\n"
         "\"Fields\",\"IdRoom\",\"RoomType\",\"/Fields\",\"\"\n\"Record\",1,\"Attic\",\"/"
         "Record\",\"\"",
         "Attic"},
        {kRooms + "a remark\n\n\"Record\" , 1 , \"x\"\"y\" , \"/Record\" \n", "x\"y"},
    };
    for (const auto& each : cases) {
        Run("DELETE * FROM Room");
        WriteText(PathTo("database.csv"), each.file);
        EXPECT_TRUE(Import().Succeeded()) << status_;
        EXPECT_EQ(Ask("SELECT RoomType FROM Room WHERE IdRoom = 1"), each.type);
        const bool isLatin1 = each.file.find('\xFC') != std::string::npos &&
                              each.file.find('\xC3') == std::string::npos;
        EXPECT_EQ(status_.find("Latin-1") != std::string::npos, isLatin1) << status_;
    }
    EXPECT_TRUE(Import(ImportMode::Test).Succeeded());
    EXPECT_EQ(status_,
              "Status: Import test succeeded ...\nTotal Tables  = 1\nTotal Records  = 1\n"
              "Invalid lines  = 2\n");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Room"), "1");
}

TEST_F(PortTest, AppendsOrReplacesWhatIsThere) {
    Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'old')");
    WriteText(PathTo("database.csv"), kRooms + "\"Record\",1,\"new\",\"/Record\"\n" + kRooms +
                                          "\"Record\",2,\"newer\",\"/Record\"\n");
    EXPECT_TRUE(Import().Succeeded());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Room"), "3") << "appended, the identifier twice";
    EXPECT_EQ(NamesIn(Folder()).find("before"), std::string::npos);
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(Import(ImportMode::Write, ImportRows::Overwrite).Succeeded());
        EXPECT_EQ(Ask("SELECT RoomType FROM Room"), "newer") << "each group replaces all rows";
    }
    EXPECT_NE(status_.find(PathTo("Vestrel before import 7.mdb")), std::string::npos) << status_;
    for (int number = 1; number <= 7; ++number) {
        const std::string copy = PathTo(fmt::format("Vestrel before import {}.mdb", number));
        EXPECT_EQ(std::filesystem::exists(copy), number > 2) << "the last five are kept";
    }
    platform::Connection copy;
    copy.Open(PathTo("Vestrel before import 7.mdb"), platform::OpenMode::ReadOnly);
    EXPECT_EQ(copy.Scalar("SELECT Count(*) FROM Room")->AsLong(), 1);

    // The settings stay one row even when rows are appended.
    Run("INSERT INTO Configuration (NextId, CompanyName) VALUES (5, 'Old')");
    WriteText(PathTo("database.csv"),
              "\"Table\",\"configuration\",\"/Table\"\n\"Fields\",\"CompanyName\",\"/Fields\"\n"
              "\"Record\",\"New\",\"/Record\"\n");
    EXPECT_TRUE(Import().Succeeded());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Configuration"), "1");
    EXPECT_EQ(Ask("SELECT CompanyName FROM Configuration"), "New");
}

TEST_F(PortTest, KeepsWhatWasWrittenBeforeAValueThatDoesntFit) {
    const std::string rent =
        "\"Table\",\"Lease\",\"/Table\"\n\"Fields\",\"IdLease\",\"Rent\",\"Term\",\"/Fields\"\n";
    for (const char* const bad : {"\"x\",12", "1000,99999", "99999999999999999,1"}) {
        Run("DELETE * FROM Lease");
        WriteText(PathTo("database.csv"), rent +
                                              "\"Record\",1,1000.5,12,\"/Record\"\n\"Record\",2," +
                                              bad + ",\"/Record\"\n\"Record\",3,0,0,\"/Record\"\n");
        EXPECT_TRUE(Import(ImportMode::Test).Succeeded());
        const ImportOutcome outcome = Import();
        EXPECT_EQ(outcome.line, 4);
        EXPECT_EQ(outcome.written, 1);
        EXPECT_NE(status_.find("line 4\nTotal Records Written = 1\n"), std::string::npos)
            << status_;
        EXPECT_NE(outcome.error.find("the field "), std::string::npos) << outcome.error;
        EXPECT_EQ(Ask("SELECT Count(*) FROM Lease"), "1");
        EXPECT_EQ(Ask("SELECT Rent FROM Lease"), "1000.5");
    }
}

TEST_F(PortTest, FindsTheRecordsThatTheDatabaseHas) {
    Run("DELETE * FROM TransCategory");
    Run("INSERT INTO TransCategory (Category, IEN) VALUES ('Rent, \"old\"', 1)");
    Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'a')");
    Run("INSERT INTO BooksSetting (Name, Content) VALUES ('Begin', 'one')");
    Run("INSERT INTO TakenBack (IdRow, RecordKind, IdRecord, Posting, DatePosted) "
        "VALUES (7, 2, 40, 1, '05/01/2024')");
    const std::string categories =
        "\"Table\",\"TransCategory\",\"/Table\"\n\"Fields\",\"IEN\",\"Category\",\"/Fields\"\n";
    const struct {
        std::string file;
        int known;
    } cases[] = {
        {kRooms + "\"Record\",2,\"a\",\"/Record\"\n\"Record\",\"\",\"a\",\"/Record\"\n", 0},
        {kRooms + "\"Record\",1,\"b\",\"/Record\"\n\"Record\",2,\"a\",\"/Record\"\n", 1},
        {"\"Table\",\"Room\",\"/Table\"\n\"Fields\",\"RoomType\",\"/Fields\"\n"
         "\"Record\",\"1\",\"/Record\"\n",
         0},
        {categories + "\"Record\",2,\"Rent, \"\"old\"\"\",\"/Record\"\n", 0},
        {categories + "\"Record\",1,\"Rent, \"\"old\"\"\",\"/Record\"\n" + kRooms +
             "\"Record\",\"1\",\"b\",\"/Record\"\n",
         2},
        {"\"Table\",\"BooksSetting\",\"/Table\"\n\"Fields\",\"Name\",\"Content\",\"/Fields\"\n"
         "\"Record\",\"Begin\",\"other\",\"/Record\"\n",
         1},
        {"\"Table\",\"TakenBack\",\"/Table\"\n\"Fields\",\"IdRow\",\"RecordKind\",\"IdRecord\","
         "\"Posting\",\"DatePosted\",\"/Fields\"\n"
         "\"Record\",7,2,40,1,\"06/01/2024\",\"/Record\"\n",
         0}, // a row of another table, or of another day
    };
    const std::vector<std::string> before = Dump();
    for (const auto& each : cases) {
        WriteText(PathTo("database.csv"), each.file);
        std::int64_t known = 0;
        PortWatcher declining = Watcher();
        declining.addAgain = [&](std::int64_t found, std::int64_t) {
            known = found;
            return false;
        };
        EXPECT_TRUE(Import(ImportMode::Test).Succeeded());
        EXPECT_EQ(ImportDatabase(PathTo("database.csv"), ImportMode::Write, ImportRows::Append,
                                 ImportMessages::Quiet, declining)
                      .Succeeded(),
                  each.known == 0);
        EXPECT_EQ(known, each.known) << each.file;
        if (each.known > 0) {
            EXPECT_EQ(Dump(), before) << each.file;
            EXPECT_EQ(status_, "Status: The import was cancelled. Nothing was imported.\n");
            declining.addAgain = [](auto...) { return ADD_FAILURE(), false; };
            EXPECT_TRUE(ImportDatabase(PathTo("database.csv"), ImportMode::Write,
                                       ImportRows::Overwrite, ImportMessages::Quiet, declining)
                            .Succeeded());
        }
        Run("DELETE * FROM TransCategory");
        Run("INSERT INTO TransCategory (Category, IEN) VALUES ('Rent, \"old\"', 1)");
        Run("DELETE * FROM Room");
        Run("INSERT INTO Room (IdRoom, RoomType) VALUES (1, 'a')");
    }

    // Another program adds one of them while the user is asked.
    WriteText(PathTo("database.csv"),
              kRooms + "\"Record\",1,\"b\",\"/Record\"\n\"Record\",2,\"b\",\"/Record\"\n");
    std::vector<std::int64_t> asked;
    PortWatcher agreeing = Watcher();
    agreeing.addAgain = [&](std::int64_t known, std::int64_t) {
        asked.push_back(known);
        if (asked.size() == 1) Run("INSERT INTO Room (IdRoom, RoomType) VALUES (2, 'b')");
        return true;
    };
    const ImportOutcome outcome =
        ImportDatabase(PathTo("database.csv"), ImportMode::Write, ImportRows::Append,
                       ImportMessages::Quiet, agreeing);
    EXPECT_THAT(asked, testing::ElementsAre(1, 2));
    EXPECT_EQ(outcome.known, 2);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Room"), "4");

    // A record in the letters of another make is known only when it is written.
    Run("INSERT INTO TransCategory (Category, IEN) VALUES ('B\xC3\xBCro', 1)");
    WriteText(PathTo("database.csv"), categories + "\"Record\",1,\"B\xFCro\",\"/Record\"\n");
    EXPECT_EQ(ImportDatabase(PathTo("database.csv"), ImportMode::Write, ImportRows::Append,
                             ImportMessages::Quiet, agreeing)
                  .known,
              1);
    EXPECT_THAT(asked, testing::ElementsAre(1, 2, 1));
}

} // namespace
