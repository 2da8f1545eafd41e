#include <gmock/gmock.h>

#include "core/Configuration.h"
#include "core/Startup.h"
#include "documents/DocList.h"
#include "kestrom/Wiring.h"
#include "platform/system/Paths.h"
#include "shell/screens/frmKestrom.h"
#include "support/KeepingDesktop.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using testing::ElementsAre;

class DocumentCommands : public ScreenTest {
  protected:
    DocumentCommands() {
        core::LoadBooks();
        core::Config().AssociateDocs = false;
        shell::screens::WindowServices services;
        services.commands = kestrom::MenuCommands();
        window_ = std::make_unique<shell::screens::frmKestrom>(std::move(services));
        window_->Setup({});
        SettleEvents();
    }

    void Template(const std::string& name, std::size_t flag, const std::string& text) {
        MakeFile(name, text);
        documents::SetDocFlag(documents::AddDoc(PathTo(name)), flag, true);
    }
    core::grid::Grid& Show(core::RecordKind kind) {
        window_->SetSelectedDb(kind);
        SettleEvents();
        return support::Find<core::grid::Grid>(*window_, "grd");
    }
    QAction& Letters() { return support::Find<QAction>(*window_, "mnuPrintDoc"); }
    /// Opens the submenu, as the pointer over its item does.
    std::vector<std::string> Offered() {
        Q_EMIT Letters().menu()->aboutToShow();
        std::vector<std::string> texts;
        for (const QAction* const item : Letters().menu()->actions())
            texts.push_back(platform::qt::FromScreen(item->text()));
        return texts;
    }

    std::unique_ptr<shell::screens::frmKestrom> window_;
    const support::KeepingDesktop desktop_;
};

TEST_F(DocumentCommands, MakeALetterForEachSelectedRow) {
    EXPECT_FALSE(Letters().isEnabled()) << "the home page has no records";
    core::grid::Grid& grid = Show(core::kTenant);
    EXPECT_TRUE(Letters().isEnabled());
    EXPECT_THAT(Offered(), ElementsAre("None for these records"));
    Template("Hello.txt", 3, "Dear <<LastName>>");
    EXPECT_THAT(Offered(), ElementsAre("&1. Hello"));

    grid.SelectId(31);
    Letters().menu()->actions()[0]->trigger();
    EXPECT_EQ("Dear O'Brien", platform::ReadWholeFile(PathTo("tmp_1.txt")));
    EXPECT_THAT(Heard(), testing::IsEmpty());

    grid.selectAll();
    SettleEvents();
    EXPECT_TRUE(Letters().isEnabled()) << "several rows are fine";
    Offered();
    Answer({false, true});
    Letters().menu()->actions()[0]->trigger();
    EXPECT_EQ(1U, desktop_.Opened().size()) << "declined";
    Letters().menu()->actions()[0]->trigger();
    EXPECT_EQ(4U, desktop_.Opened().size());
    std::string all;
    for (const auto* name : {"tmp_2.txt", "tmp_3.txt", "tmp_4.txt"})
        all += platform::ReadWholeFile(PathTo(name)) + ";";
    for (const auto* name : {"Smith", "O'Brien", "Zu"})
        EXPECT_NE(std::string::npos, all.find(name)) << all;
    const std::vector<std::string> heard = Heard();
    ASSERT_EQ(2U, heard.size());
    EXPECT_TRUE(heard[1].starts_with("Confirm Letters: 3 records are selected.")) << heard[1];
    grid.clearSelection();
    EXPECT_FALSE(Letters().isEnabled());
}

TEST_F(DocumentCommands, OfferAUnitTheLettersOfItsBuilding) {
    Template("House.txt", 7, "<<Address>>|<<Unit>>");
    Template("Unit.txt", 8, "");
    Show(core::kUnit).SelectId(21);
    EXPECT_THAT(Offered(), ElementsAre("&1. House", "&2. Unit"));
    Letters().menu()->actions()[0]->trigger();
    EXPECT_EQ("12 Elm St|A", platform::ReadWholeFile(PathTo("tmp_1.txt")));
}

} // namespace
} // namespace support
