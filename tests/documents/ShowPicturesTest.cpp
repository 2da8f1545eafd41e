#include "documents/ShowPictures.h"

#include <gtest/gtest.h>

#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "core/Settings.h"
#include "documents/AttachFile.h"
#include "documents/FilePanelSettings.h"
#include "documents/ShowList.h"
#include "platform/system/Paths.h"
#include "support/ScriptedDialogs.h"

namespace {

using Started = std::vector<std::string>;

class PictureShow : public tests::CoreRecords {
  protected:
    static void Attach(core::RecordKind kind, std::int32_t id, std::string path) {
        ASSERT_TRUE(documents::AttachFile(kind, id, path));
    }
    void Show(core::RecordKind kind, std::int32_t id, std::string title = {}) {
        documents::ShowPictures(kind, id, std::move(title),
                                [this](const auto& program, const auto& arguments) {
                                    started_ = arguments;
                                    started_.insert(started_.begin(), program.string());
                                    return canStart_;
                                });
    }
    std::string List() const { return platform::ReadWholeFile(PathTo("pr.ini")); }

    bool canStart_ = true;
    Started started_;
    support::ScriptedDialogs dialogs_;
};

TEST_F(PictureShow, StartsOnTheListOfARecordsPictures) {
    MakeFile("PhotoReel.exe");
    Attach(core::kUnit, 20, "/p/kitchen.jpg");
    Attach(core::kUnit, 20, "/p/plan.png");
    Attach(core::kUnit, 20, "/p/a|b.gif");
    Attach(core::kTenant, 20, "/p/other.jpg");
    Show(core::kUnit, 20);
    EXPECT_EQ("Vestrel Slide Show - 12 Elm St B\nkitchen|/p/kitchen.jpg\na|b|/p/a|b.gif\n", List());
    EXPECT_EQ((Started{PathTo("PhotoReel.exe"), "/loadfile", PathTo("pr.ini")}), started_);
    EXPECT_TRUE(dialogs_.Heard().empty());
}

TEST_F(PictureShow, OfAUnitWithItsBuildingHasThePicturesOfBoth) {
    MakeFile("PhotoReel.exe");
    Attach(core::kBuilding, 10, "/p/front.jpg");
    Attach(core::kUnit, 20, "/p/kitchen.jpg");
    Attach(core::kUnit, 21, "/p/another unit.jpg");
    Attach(core::kBuilding, 11, "/p/another building.jpg");
    Show(core::kUnitWithBuilding, 20, "12 Elm St");
    const std::string pictures = "\nkitchen|/p/kitchen.jpg\nfront|/p/front.jpg\n";
    EXPECT_EQ("12 Elm St" + pictures, List());
    Show(core::kUnitWithBuilding, 20);
    EXPECT_EQ("Vestrel Slide Show - 12 Elm St B" + pictures, List());
}

TEST_F(PictureShow, IsSorryWithoutPictures) {
    MakeFile("PhotoReel.exe");
    Attach(core::kUnit, 20, "/p/plan.png");
    Show(core::kUnit, 20);
    ASSERT_EQ(1U, dialogs_.Heard().size());
    EXPECT_EQ("Sorry", dialogs_.Heard()[0].title);
    EXPECT_EQ("No pictures avaliable for this item for slide show.", dialogs_.Heard()[0].text);
    EXPECT_TRUE(started_.empty());
    EXPECT_FALSE(std::filesystem::exists(PathTo("pr.ini")));
}

TEST_F(PictureShow, IsSorryWithoutItsProgram) {
    Attach(core::kUnit, 20, "/p/kitchen.jpg");
    for (const bool isThere : {false, true}) {
        if (isThere) MakeFile("PhotoReel.exe");
        canStart_ = false;
        Show(core::kUnit, 20);
        EXPECT_EQ(isThere, !started_.empty());
        EXPECT_EQ("Sorry", dialogs_.Heard().back().title);
        EXPECT_EQ("PhotoReel application not found.", dialogs_.Heard().back().text);
    }
}

TEST(ShowList, ReadsBackWhatWasWritten) {
    const documents::ShowList list{
        "Title | of \U0001F3E0",
        {{"plain", "/p/a.jpg"}, {"", "/p/b.jpg"}, {"a|b", "/p/a|b.gif"}, {"rel", "c.bmp"}}};
    const documents::ShowList read = documents::ParseShowList(documents::ShowListText(list));
    EXPECT_EQ(list.title, read.title);
    EXPECT_EQ(list.pictures, read.pictures);
}

TEST(ShowList, KeepsToOneLineAPicture) {
    EXPECT_EQ("Two lines\nwith a break|/p/a.jpg\n",
              documents::ShowListText({"Two\nlines", {{"with\na break", "/p/a.jpg"}}}));
}

TEST(ShowList, IsReadFromAnyText) {
    using Pictures = std::vector<documents::ShowPicture>;
    EXPECT_TRUE(documents::ParseShowList("").pictures.empty());
    EXPECT_EQ("Title", documents::ParseShowList("Title").title);
    const auto list =
        documents::ParseShowList("Title\r\n\r\nno path\r\nnothing| \r\nx|C:\\a.jpg\r\ny|/b.jpg");
    EXPECT_EQ("Title", list.title);
    EXPECT_EQ((Pictures{{"x", "C:\\a.jpg"}, {"y", "/b.jpg"}}), list.pictures);
}

class FilePanel : public tests::CoreProcess {};

TEST_F(FilePanel, KeepsItsSettingsApartFromAnotherPanels) {
    documents::FilePanelSettings settings;
    settings.vSplit = 0.25;
    settings.ShowPath = true;
    documents::SaveFilePanelSettings("frmUnit.ucFOB", settings);
    EXPECT_EQ(0.25, documents::LoadFilePanelSettings("frmUnit.ucFOB").vSplit);
    EXPECT_TRUE(documents::LoadFilePanelSettings("frmUnit.ucFOB").ShowPath);
    EXPECT_EQ(0.5, documents::LoadFilePanelSettings("frmTenant.ucFOB").vSplit);
    EXPECT_EQ(0.4, documents::LoadFilePanelSettings("frmTenant.ucFOB").hSplit);

    settings.SaveSettings = false;
    settings.AllowDelete = false;
    documents::SaveFilePanelSettings("frmUnit.ucFOB", settings);
    const auto unsaved = documents::LoadFilePanelSettings("frmUnit.ucFOB");
    EXPECT_FALSE(unsaved.SaveSettings);
    EXPECT_FALSE(unsaved.ShowPath) << "the others aren't read";
}

TEST_F(FilePanel, TakesTheUsualShareForOneThatIsNone) {
    const std::string key = R"(SOFTWARE\Vestrel\Kestrom\FileObjects\p)";
    for (const char* share : {"", "0", "1", "-0.5", "7", "half", "nan"}) {
        core::SetRegString(key, "hSplit", share);
        EXPECT_EQ(0.4, documents::LoadFilePanelSettings("p").hSplit) << share;
    }
}

} // namespace
