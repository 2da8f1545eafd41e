#include "exchange/Backup.h"

#include "core/CoreFixture.h"
#include "core/MessagePump.h"
#include "exchange/ContainerList.h"
#include "exchange/FixedRecord.h"
#include "exchange/Restore.h"
#include "exchange/Stops.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace {

using namespace tests;
namespace fs = std::filesystem;
using namespace exchange;

class BackupTest : public CoreBooks {
  protected:
    BackupTest() {
        fs::create_directory(To());
        Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (1, 'First Bank')");
    }

    fs::path To() const { return Folder() / "backups"; }
    fs::path Container(int number) const {
        return To() / ("Vestrel." + std::to_string(number) + ".vbk");
    }

    BackupConfig Config() const {
        BackupConfig config;
        config.backupPath = To().string() + "/";
        return config;
    }

    BackupReport BackUp(BackupConfig& config, const BackupChoice& choice = {}) {
        lines_.clear();
        return RunBackup(config, choice, [this](const BackupLine& line) {
            if (line.result.empty()) {
                running_ = line.action;
                return;
            }
            // A step that was begun is the one that ends, but for the files that fail within it.
            if (line.action == running_) running_.clear();
            lines_.push_back(line.action + ": " + line.result);
        });
    }
    BackupReport BackUp() {
        BackupConfig config = Config();
        return BackUp(config);
    }

    void AttachFile(const std::string& path) {
        core::App().Connection.Execute(
            "INSERT INTO FileObject (IdFileObject, FilePath) VALUES (2, ?)", {path});
    }

    std::vector<std::string> lines_;
    std::string running_;
};

TEST_F(BackupTest, KeepsItsSettingsToTheByte) {
    BackupConfig config;
    LoadBackupConfig(config);
    EXPECT_EQ(config.backupPath, PathTo("Backup/"));
    EXPECT_EQ(LastBackupText(config), "Last Backup: Never");
    config = {"/b/", 2, -14, 3, 258, true, platform::Date(2024, 2, 29), {}};
    EXPECT_TRUE(SaveBackupConfig(config));
    std::string bytes = "/b/" + std::string(252, ' ');
    bytes += std::string("\2\0\0\0\xF2\xFF\xFF\xFF\3\0\0\0\2\1\0\0\xFF\xFF", 18);
    bytes += "02/29/2024" + std::string(1000, '\0');
    EXPECT_EQ(ReadText(BackupConfigPath()), bytes);
    // The reserved bytes, which another version may use, are preserved.
    bytes.back() = 'x';
    WriteText(BackupConfigPath(), bytes);
    LoadBackupConfig(config);
    EXPECT_EQ(config.keepPeriods, -14);
    EXPECT_EQ(config.backupPeriods, 258);
    EXPECT_EQ(LastBackupText(config), "Last Backup: 02/29/2024");
    SaveBackupConfig(config);
    EXPECT_EQ(ReadText(BackupConfigPath()), bytes);
    config.backupPath = std::string(256, 'x');
    EXPECT_THROW(SaveBackupConfig(config), platform::Error);
    EXPECT_EQ(ReadText(BackupConfigPath()), bytes);
}

TEST_F(BackupTest, TellsWhetherItIsTime) {
    EXPECT_TRUE(IsBackupDue()) << "there is no configuration";
    support::ForEachCase(VESTREL_TEST_DATA "/backup.cases", "due",
                         [this](const support::Case& each) {
                             BackupConfig config = Config();
                             config.backupInterval = each.Number<int>("interval");
                             config.backupPeriods = each.Number<int>("periods");
                             config.lastBackup = platform::Date::Parse(each["last"]);
                             SaveBackupConfig(config);
                             EXPECT_EQ(IsBackupDue(), each.IsYes("is due"));
                         });
    WriteText(BackupConfigPath(), "cut");
    EXPECT_FALSE(IsBackupDue());
}

TEST_F(BackupTest, PacksEverythingIntoANewContainer) {
    MakeFile("lease.rtf", std::string(100'000, 'l'));
    MakeFile("empty.jpg");
    Run("INSERT INTO Doc (IdDoc, FilePath) VALUES (3, '" + PathTo("lease.rtf") + "')");
    AttachFile(PathTo("empty.jpg"));
    BackupConfig config = Config();
    const BackupReport report = BackUp(config);
    EXPECT_EQ(report.outcome, BackupOutcome::Success);
    const std::vector<std::string> expected = {
        "Starting backup: Success",
        "Testing destination directory: Success",
        "Found 5 files to back up: Success",
        "Backing up to file " + Container(0).string() + ": Success",
        "Backing up database files: Success",
        "Backing up related files: Success",
        "Removing expired backups: Success",
        "Removed 0 expired files: Success",
        "The backup was completed successfully.: Success"};
    EXPECT_EQ(lines_, expected);
    EXPECT_EQ(running_, "");
    EXPECT_EQ(config.lastBackup, platform::Today());
    EXPECT_FALSE(IsBackupDue());

    const std::string bytes = ReadText(Container(0));
    const std::vector<ContainerEntry> entries = ListContainer(Container(0));
    ASSERT_EQ(entries.size(), 5U);
    std::size_t at = 0;
    const struct {
        std::string path;
        int type;
    } files[] = {{PathTo("Vestrel.mdb"), 1},
                 {PathTo("Version"), 1},
                 {PathTo("BaR.cfg"), 1},
                 {PathTo("lease.rtf"), 2},
                 {PathTo("empty.jpg"), 3}};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const EntryHeader& header = entries[i].header;
        EXPECT_EQ(header.filePath, files[i].path);
        const std::string raw = bytes.substr(at, kHeaderSize);
        EXPECT_EQ(raw.substr(0, 260),
                  header.filePath + std::string(260 - header.filePath.size(), ' '));
        FixedRecordWriter numbers(12);
        numbers.SetInteger(0, static_cast<std::int16_t>(files[i].type));
        numbers.SetInteger(2, 2);
        numbers.SetLong(4, header.fileSize);
        numbers.SetLong(8, static_cast<std::int32_t>(at + 501));
        EXPECT_EQ(raw.substr(260, 12), numbers.Bytes());
        EXPECT_EQ(raw.substr(272, 30), FileDateText(files[i].path) + std::string(11, ' '));
        EXPECT_EQ(raw.substr(302), std::string(198, '\0'));
        if (i > 2) {
            EXPECT_EQ(bytes.substr(at + 500, static_cast<std::size_t>(header.fileSize)),
                      ReadText(header.filePath));
        }
        at += kHeaderSize + static_cast<std::size_t>(header.fileSize);
    }
    EXPECT_EQ(at, bytes.size());
}

TEST_F(BackupTest, TakesTheDatabaseAsItIsWhileItIsUsed) {
    // Committed rows are still in the log; uncommitted ones must stay out.
    Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (2, 'Committed')");
    const platform::UnitOfWork unit(core::App().Connection);
    Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (3, 'Pending')");
    BackUp();
    const RestoreReport restored =
        RestoreContainer(Container(0), Folder() / "restored", RestoreScope::Everything, {});
    EXPECT_TRUE(restored.IsWhole());
    platform::Connection copy;
    copy.Open(Folder() / "restored" / "Vestrel.mdb", platform::OpenMode::ReadOnly);
    EXPECT_EQ(copy.Scalar("SELECT Count(*) FROM Account")->AsLong(), 2);
}

TEST_F(BackupTest, SaysWhichFilesAreMissing) {
    const std::string longPath = PathTo("long") + "/" + std::string(300, 'x');
    AttachFile(PathTo("gone.jpg"));
    AttachFile(longPath);
    Run("INSERT INTO FileObject (IdFileObject, FilePath) VALUES (4, '')");
    const BackupReport report = BackUp();
    EXPECT_EQ(report.result, "Warning");
    EXPECT_EQ(report.text, "The backup was partially completed (database backup was OK).");
    const auto has = [this](const std::string& line) {
        return std::ranges::count(lines_, line) == 1;
    };
    EXPECT_TRUE(has(PathTo("gone.jpg") + ": File not found"));
    EXPECT_TRUE(has(longPath + " (the path is longer than 260 bytes): Failed"));
    EXPECT_TRUE(has("Backing up related files: Warning"));
    EXPECT_EQ(ListContainer(Container(0)).size(), 3U);
    // Without related files nothing is missing.
    BackupConfig config = Config();
    const fs::path elsewhere = Folder() / "elsewhere";
    fs::create_directory(elsewhere);
    EXPECT_EQ(BackUp(config, {elsewhere.string(), false}).outcome, BackupOutcome::Success);
    EXPECT_EQ(NamesIn(elsewhere), "Vestrel.0.vbk");
    BackupConfig stored;
    LoadBackupConfig(stored);
    EXPECT_EQ(stored.backupPath, Config().backupPath) << "a choice for one run isn't kept";
    EXPECT_TRUE(stored.backupAllFiles);
}

TEST_F(BackupTest, LeavesOutAFileThatShrinksWhileItIsPacked) {
    const fs::path log = Folder() / "mail.log";
    WriteText(log, std::string(250'000, 'm'));
    AttachFile(log.string());
    MakeFile("photo.jpg", "picture");
    AttachFile(PathTo("photo.jpg"));
    core::SetMessagePump([&] {
        const bool isPacking = fs::exists(Container(0)) && fs::file_size(Container(0)) > 500'000;
        if (isPacking) fs::resize_file(log, 100'000);
    });
    const BackupReport report = BackUp();
    core::SetMessagePump({});
    EXPECT_EQ(report.outcome, BackupOutcome::Partial);
    EXPECT_EQ(std::ranges::count(lines_, log.string() + ": Error 5, the file became shorter while "
                                                        "it was read"),
              1);
    const std::vector<ContainerEntry> entries = ListContainer(Container(0));
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries.back().header.filePath, PathTo("photo.jpg"));
    EXPECT_EQ(entries.back().state, EntryState::Whole);
}

TEST_F(BackupTest, NamesContainersAndRemovesExpiredOnes) {
    platform::SetToday(platform::ChangedAt(Folder() / "Vestrel.mdb").day);
    const auto make = [this](int number, int daysAgo) {
        WriteText(Container(number), "x");
        platform::SetChangedAt(
            Container(number),
            {platform::DateAdd(platform::Interval::Day, -daysAgo, platform::Today()), 0});
    };
    make(0, 14);
    make(1, 13);
    WriteText(To() / "Vestrel.txt", "x");
    WriteText(To() / "test.vbk", "somebody's");
    BackUp();
    EXPECT_EQ(NamesIn(To()), "Vestrel.1.vbk Vestrel.2.vbk Vestrel.txt test.vbk");
    EXPECT_EQ(ReadText(To() / "test.vbk"), "somebody's");
    BackUp();
    EXPECT_EQ(NamesIn(To()), "Vestrel.0.vbk Vestrel.1.vbk Vestrel.2.vbk Vestrel.txt test.vbk");
    EXPECT_EQ(ContainersLeft(Config()), 4U);
    BackupConfig config = Config();
    config.keepPeriods = 0;
    EXPECT_EQ(ContainersLeft(config), 0U);
    BackUp(config);
    EXPECT_EQ(NamesIn(To()), "Vestrel.txt test.vbk") << "each difference is at least 0";
}

TEST_F(BackupTest, FailsWithoutTouchingOlderContainers) {
    BackupConfig config = Config();
    config.keepPeriods = 0;
    BackUp();
    fs::remove(Folder() / "Vestrel.mdb-wal");
    core::App().Connection.Close();
    WriteText(Folder() / "Vestrel.mdb", std::string(5000, 'x'));
    const BackupReport report = BackUp(config);
    EXPECT_EQ(report.result, "Failed");
    EXPECT_EQ(report.text, "The database backup has failed.");
    EXPECT_TRUE(fs::exists(Container(0)));
    EXPECT_FALSE(config.lastBackup.IsSet());
    config.backupPath = PathTo("nowhere/");
    EXPECT_EQ(BackUp(config).text, "Error opening test file in " + PathTo("nowhere/"));
    EXPECT_EQ(lines_.back(), "Error opening test file in " + PathTo("nowhere/") + ": Failed");
    EXPECT_EQ(lines_[1], "Testing destination directory: Failed");
    EXPECT_EQ(lines_.size(), 3U);
}

TEST_F(BackupTest, SurvivesAStopAtEveryStep) {
    MakeFile("lease.rtf", std::string(250'000, 'l'));
    AttachFile(PathTo("lease.rtf"));
    BackUp();
    const std::string first = ReadText(Container(0));
    const int steps = StopAtEveryStep(
        Folder(), [this] { BackUp(); },
        [&](bool wasStopped) {
            EXPECT_EQ(ReadText(Container(0)), first);
            BackupConfig config;
            EXPECT_NO_THROW(LoadBackupConfig(config)) << "never half a configuration";
            if (!fs::exists(Container(1)) || fs::file_size(Container(1)) == 0) return;
            const std::vector<ContainerEntry> entries = ListContainer(Container(1));
            for (std::size_t i = 0; i + 1 < entries.size(); ++i)
                EXPECT_EQ(entries[i].state, EntryState::Whole);
            if (!wasStopped) {
                EXPECT_EQ(entries.size(), 4U);
            }
        });
    EXPECT_GT(steps, 15);
    // A full disk is reported, and whole entries stay.
    WithLittleRoom(300'000, [this] {
        const BackupReport report = BackUp();
        if (report.outcome == BackupOutcome::Success) return;
        WriteText(To() / "outcome", lines_[4]);
    });
    const std::string outcome = ReadText(To() / "outcome");
    EXPECT_NE(outcome.find(fmt::format(": Error {}, ", EFBIG)), std::string::npos) << outcome;
    EXPECT_EQ(ReadText(Container(0)), first);
}

} // namespace
