#include "documents/AttachFile.h"

#include <gtest/gtest.h>

#include "core/Configuration.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "documents/FileRows.h"
#include "support/ScriptedChoosers.h"
#include "support/ScriptedDialogs.h"

namespace {

using documents::AttachFile;
using documents::Quiet;

class AttachedFiles : public tests::CoreRecords {
  protected:
    /// A path of so many characters, of more than one byte each.
    static std::string PathOf(std::size_t characters) {
        std::string path = "/";
        for (std::size_t i = 1; i < characters; ++i)
            path += "\u00fc";
        return path;
    }
    static bool Attach(std::string path, Quiet quiet = Quiet::No) {
        return AttachFile(core::kUnit, 20, path, quiet);
    }
};

TEST_F(AttachedFiles, AreDescribedByTheirNames) {
    struct Case {
        std::string path;
        std::string description;
        bool isPicture;
    };
    const std::string fifty(50, 'x');
    const std::vector<Case> cases = {
        {"/photos/photo.JPG", "photo", true},
        {"/photos/front.jpeg", "front", true},
        {"C:\\photos\\roof.GIF", "roof", true},
        {"plan.bmp", "plan", true},
        {"/photos/photo.png", "photo", false},
        {"/photos/photo.jpg.txt", "photo.jpg", false},
        {"/photos.jpg/photo", "photo", false},
        {"/home/.jpg", ".jpg", false},
        {"/home/no ending.", "no ending", false},
        {"/home/O'Hare \"new\" \U0001F3E0.pdf", "O'Hare \"new\" \U0001F3E0", false},
        {"/home/" + fifty + "yz.jpg", fifty, true},
    };
    for (const Case& one : cases) {
        EXPECT_TRUE(Attach(one.path)) << one.path;
        const documents::FileRow row = documents::FilesOf(core::kUnit, 20).back();
        EXPECT_EQ(one.path, row.path);
        EXPECT_EQ(one.description, row.description);
        EXPECT_EQ(one.isPicture, row.isPicture) << one.path;
    }
    EXPECT_EQ(cases.size(), documents::FilesOf(core::kUnit, 20).size());
    EXPECT_TRUE(documents::FilesOf(core::kTenant, 20).empty()) << "of another kind";
}

TEST_F(AttachedFiles, TakeAnIdentifierAndTellTheScreens) {
    std::vector<std::pair<core::RecordKind, int>> heard;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t action, std::int32_t) {
        heard.emplace_back(kind, action);
    });
    EXPECT_TRUE(Attach("/a.txt"));
    EXPECT_EQ(1000, documents::FilesOf(core::kUnit, 20).at(0).id);
    EXPECT_EQ((std::vector<std::pair<core::RecordKind, int>>{{core::kFileObject, 1}}), heard);
}

TEST_F(AttachedFiles, OfALongPathAreRefusedFrom256Characters) {
    support::ScriptedDialogs dialogs;
    EXPECT_TRUE(Attach(PathOf(255)));
    EXPECT_TRUE(dialogs.Heard().empty());
    EXPECT_FALSE(Attach(PathOf(256)));
    ASSERT_EQ(1U, dialogs.Heard().size());
    EXPECT_EQ("Error", dialogs.Heard()[0].title);
    EXPECT_EQ(
        "The file path for the selected item is too long. There can be a maximum of 260 "
        "characters\n"
        "in the path and filename. Please move the file to a different directory or shorten the "
        "file\n"
        "name and try saving again.\n"
        "Press OK to continue.",
        dialogs.Heard()[0].text);
    EXPECT_TRUE(Attach(PathOf(256), Quiet::Yes));
    EXPECT_EQ(1U, dialogs.Heard().size());
    EXPECT_EQ(2U, documents::FilesOf(core::kUnit, 20).size());
}

TEST_F(AttachedFiles, AreNoFolders) {
    support::ScriptedDialogs dialogs;
    EXPECT_FALSE(Attach(Folder().string()));
    EXPECT_FALSE(Attach(Folder().string(), Quiet::Yes));
    EXPECT_EQ(1U, dialogs.Heard().size());
    EXPECT_EQ("0", Ask("SELECT Count(*) FROM FileObject"));
}

TEST_F(AttachedFiles, AreAskedForWithoutAPath) {
    core::Config().FileDirectory = "/files";
    support::ScriptedChoosers choosers({"/chosen/lease.pdf"});
    std::string path;
    EXPECT_TRUE(AttachFile(core::kLease, 40, path));
    EXPECT_EQ("/chosen/lease.pdf", path);
    ASSERT_EQ(1U, choosers.Asked().size());
    EXPECT_EQ("Select File", choosers.Asked()[0].title);
    EXPECT_EQ("/files", choosers.Asked()[0].start);
    EXPECT_EQ("All Files", choosers.Asked()[0].filters.at(0).name);
    EXPECT_EQ("*.*", choosers.Asked()[0].filters.at(0).patterns);

    std::string cancelled;
    EXPECT_FALSE(AttachFile(core::kLease, 40, cancelled));
    EXPECT_EQ("1", Ask("SELECT Count(*) FROM FileObject"));
}

using Properties = std::vector<std::pair<std::string, std::string>>;

Properties PairsOf(const documents::FileRow& file) {
    Properties pairs;
    for (const documents::FileProperty& property : documents::PropertiesOf(file)) {
        pairs.emplace_back(property.item, property.value);
    }
    return pairs;
}

TEST_F(AttachedFiles, TellWhatIsKnownOfThem) {
    MakeFile(".plan", std::string(1234567, 'x'));
    std::filesystem::permissions(PathTo(".plan"), std::filesystem::perms::owner_read);
    documents::FileRow file;
    file.dbType = core::kUnit;
    file.idOwner = 20;
    file.path = PathTo(".plan");
    EXPECT_EQ((Properties{{"File Exists", "Yes"},
                          {"Full Path", PathTo(".plan")},
                          {"Database Type", "Unit"},
                          {"Database Item", "12 Elm St B"},
                          {"File Size", "1,234,567"},
                          {"Read Only", "Yes"},
                          {"Hidden", "Yes"}}),
              PairsOf(file));
    MakeFile("open", "x");
    file.path = PathTo("open");
    const Properties open = PairsOf(file);
    EXPECT_EQ((std::pair<std::string, std::string>("File Size", "1")), open.at(4));
    EXPECT_EQ("No", open.at(5).second);
    EXPECT_EQ("No", open.at(6).second);
    file.path = PathTo("moved");
    EXPECT_EQ((Properties{{"File Exists", "No"}}), PairsOf(file));
}

TEST_F(AttachedFiles, TakeAnotherDescription) {
    EXPECT_TRUE(Attach("/a.txt"));
    EXPECT_TRUE(Attach("/b.txt"));
    documents::DescribeFile(1001, "O'Brien's " + std::string(300, 'x'));
    const auto files = documents::AllFiles();
    EXPECT_EQ("a", files.at(0).description);
    EXPECT_EQ("O'Brien's " + std::string(245, 'x'), files.at(1).description);
}

} // namespace
