#include "documents/screens/DocMenus.h"

#include <gmock/gmock.h>

#include <QDialog>
#include <QVBoxLayout>

#include "core/Configuration.h"
#include "core/forms/RecordBar.h"
#include "documents/DocList.h"
#include "platform/system/Paths.h"
#include "support/KeepingDesktop.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::forms::Subject;
using testing::ElementsAre;
using testing::IsEmpty;

class DocMenus : public ScreenTest {
  protected:
    DocMenus() {
        core::LoadConfiguration();
        core::Config().AssociateDocs = false;
        documents::screens::RegisterDocMenus([this] { ++managed_; });
    }
    ~DocMenus() override {
        core::forms::RegisterRecordMenu(core::forms::RecordMenu::Documents, "documents.letters",
                                        {});
    }

    std::int32_t Template(const std::string& name, std::size_t flag, const std::string& text) {
        MakeFile(name, text);
        const std::int32_t id = documents::AddDoc(PathTo(name));
        documents::SetDocFlag(id, flag, true);
        return id;
    }
    void ShowForm(core::RecordKind kind, std::vector<Subject> subjects) {
        form_ = std::make_unique<QDialog>();
        new QVBoxLayout(form_.get());
        bar_ = new core::forms::RecordBar(
            *form_, kind, {.apply = [] {}, .close = [] {}, .save = [this] { return Save(); }});
        unsaved_ = std::move(subjects);
        bar_->Show(unsaved_);
        SettleEvents();
    }
    /// A new record has its id after the save.
    bool Save() {
        if (saved_.empty()) return saves_;
        bar_->Show(saved_);
        return saves_;
    }
    std::vector<std::string> Items() const {
        std::vector<std::string> texts;
        for (const QAction* const item : form_->findChildren<QAction*>("mnuDocItem"))
            texts.push_back(platform::qt::FromScreen(item->text()));
        return texts;
    }
    void Trigger(int item) {
        form_->findChildren<QAction*>("mnuDocItem").at(item)->trigger();
        SettleEvents();
    }

    std::unique_ptr<QDialog> form_;
    core::forms::RecordBar* bar_ = nullptr;
    std::vector<Subject> unsaved_;
    std::vector<Subject> saved_;
    bool saves_ = true;
    int managed_ = 0;
    const support::KeepingDesktop desktop_;
};

TEST_F(DocMenus, OfferTheTemplatesOfTheirRecord) {
    Template("Pay & stay.txt", 1, "Dear <<LastName>>");
    Template("Late.txt", 1, "<<LastName>> is late");
    Template("Welcome.txt", 3, "Hello <<FirstName>>");
    ShowForm(core::kLease, {{core::kLease, 40}});
    EXPECT_THAT(Items(), ElementsAre("&1. Late", "&2. Pay && stay"));
    EXPECT_NE(form_->findChild<QAction*>("mnuDocSep1"), nullptr);
    Trigger(1);
    EXPECT_THAT(desktop_.Opened(), ElementsAre(PathTo("tmp_1.txt")));
    EXPECT_EQ("Dear Smith", platform::ReadWholeFile(PathTo("tmp_1.txt")));

    Template("Another.txt", 1, "");
    bar_->Show({{core::kLease, 40}});
    SettleEvents();
    EXPECT_EQ(3U, Items().size()) << "the list is read whenever the menu opens";
    saves_ = false;
    Trigger(0);
    EXPECT_EQ(1U, desktop_.Opened().size()) << "the record wasn't saved";

    ShowForm(core::kAccount, {{core::kAccount, 60}});
    EXPECT_THAT(Items(), IsEmpty());
    EXPECT_EQ(form_->findChild<QAction*>("mnuDocSep1"), nullptr);
    support::Find<QAction>(*form_, "mnuDocMgmt").trigger();
    EXPECT_EQ(1, managed_);
    ShowForm(core::kRoom, {{core::kRoom, 80}});
    EXPECT_EQ(form_->findChild<QAction*>("mnuDocMgmt"), nullptr);
}

TEST_F(DocMenus, FillABuildingsLettersFromItsUnit) {
    Template("House.txt", 7, "<<Address>> <<Unit>>");
    Template("Unit.txt", 8, "<<Unit>>");
    Template("Both.txt", 8, "");
    documents::SetDocFlag(Template("Room.txt", 0, ""), 7, true);
    ShowForm(core::kBuilding, {{core::kBuilding, 0}, {core::kUnit, 0}});
    EXPECT_THAT(Items(), ElementsAre("&1. Both", "&2. House", "&3. Room", "&4. Unit"));
    Trigger(1);
    EXPECT_THAT(desktop_.Opened(), IsEmpty()) << "there is nothing to merge yet";
    saved_ = {{core::kBuilding, 10}, {core::kUnit, 21}};
    Trigger(1);
    EXPECT_EQ("12 Elm St A", platform::ReadWholeFile(PathTo("tmp_1.txt")));
}

TEST_F(DocMenus, ReportATemplateThatIsGone) {
    Template("Late.txt", 1, "");
    std::filesystem::remove(PathTo("Late.txt"));
    ShowForm(core::kLease, {{core::kLease, 40}});
    Trigger(0);
    const std::vector<std::string> heard = Heard();
    ASSERT_EQ(1U, heard.size());
    EXPECT_TRUE(heard[0].starts_with("Document Error: An error occured opening")) << heard[0];
}

} // namespace
} // namespace support
