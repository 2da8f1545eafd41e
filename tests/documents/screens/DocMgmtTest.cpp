#include "documents/screens/frmDocMgmt.h"

#include <QHeaderView>
#include <QTableWidget>
#include <filesystem>

#include "core/Configuration.h"
#include "documents/DocList.h"
#include "support/ScriptedChoosers.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using documents::screens::frmDocMgmt;

class DocMgmtScreen : public ScreenTest {
  protected:
    frmDocMgmt& OpenForm() {
        auto* const form = new frmDocMgmt;
        form->Setup();
        return *form;
    }
    static std::string Cell(const frmDocMgmt& form, int row, int column) {
        const auto* const item = Find<QTableWidget>(form, "grd").item(row, column);
        if (item == nullptr) return "-";
        if (item->flags().testFlag(Qt::ItemIsUserCheckable))
            return item->checkState() == Qt::Checked ? "x" : "";
        return platform::qt::FromScreen(item->text());
    }
    static std::string Faults(const frmDocMgmt& form) {
        return platform::qt::FromScreen(Find<QLabel>(form, "lblFaults").text());
    }
};

TEST_F(DocMgmtScreen, AddsTicksAndDeletesTemplates) {
    frmDocMgmt& form = OpenForm();
    EXPECT_EQ("No Files Found.", Cell(form, 0, 0));
    EXPECT_FALSE(Find<QPushButton>(form, "cmdDelete").isEnabled());

    MakeFile("Late.rtf", "{\\rtf1 <<LastName>> <<Nope>>}");
    const support::ScriptedChoosers choosers({PathTo("Late.rtf")});
    support::ClickOn(Find<QPushButton>(form, "cmdAdd"));
    ASSERT_EQ(1U, choosers.Asked().size());
    EXPECT_EQ("Select File", choosers.Asked()[0].title);
    EXPECT_EQ("Rich Text File", choosers.Asked()[0].filters[0].name) << "the patterns are added";
    EXPECT_EQ("Late", Cell(form, 0, 0));
    support::SettleEvents();
    const auto& head = *Find<QTableWidget>(form, "grd").horizontalHeader();
    EXPECT_EQ(head.length(), head.viewport()->width()) << "the descriptions take what is left";

    auto& grid = Find<QTableWidget>(form, "grd");
    grid.setCurrentCell(0, 0);
    EXPECT_NE(std::string::npos, Faults(form).find("Tick the kinds"));
    grid.item(0, 3)->setCheckState(Qt::Checked); // leases
    EXPECT_EQ("True", Ask("SELECT selLease FROM Doc"));
    EXPECT_EQ("False", Ask("SELECT selAccount FROM Doc"));
    EXPECT_EQ("x", Cell(form, 0, 3));
    EXPECT_NE(std::string::npos, Faults(form).find("<<Nope>>")) << Faults(form);

    support::ClickOn(Find<QPushButton>(form, "cmdDelete"));
    EXPECT_EQ("1", Ask("SELECT Count(*) FROM Doc")) << "No";
    EXPECT_EQ(Heard(),
              std::vector<std::string>{"Confirm Delete: Delete selected Document?\n\nLate"});
    Answer({true});
    support::ClickOn(Find<QPushButton>(form, "cmdDelete"));
    EXPECT_EQ("0", Ask("SELECT Count(*) FROM Doc"));
    EXPECT_TRUE(std::filesystem::exists(PathTo("Late.rtf"))) << "the file stays";
    EXPECT_EQ("No Files Found.", Cell(form, 0, 0));
    support::ClickOn(Find<QPushButton>(form, "cmdDelete"));
}

TEST_F(DocMgmtScreen, TicksTheSpaceKeyOnceAndKeepsTheSelection) {
    documents::AddDoc("/x/A.rtf");
    documents::AddDoc("/x/B.rtf");
    frmDocMgmt& form = OpenForm();
    auto& grid = Find<QTableWidget>(form, "grd");
    EXPECT_TRUE(Find<QPushButton>(form, "cmdEdit").isEnabled()) << "the first one is selected";
    grid.setCurrentCell(1, 2);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ("B", Ask("SELECT Description FROM Doc WHERE selAccount = True"));
    EXPECT_EQ(1, grid.currentRow());
    QTest::keyClick(&grid, Qt::Key_Delete);
    EXPECT_EQ("2", Ask("SELECT Count(*) FROM Doc")) << "only the button deletes";
}

TEST_F(DocMgmtScreen, KeepsItsOptions) {
    core::LoadConfiguration();
    {
        frmDocMgmt& form = OpenForm();
        EXPECT_TRUE(Find<QTableWidget>(form, "grd").isColumnHidden(1));
        Find<QCheckBox>(form, "chkShowPath").click();
        Find<QTabWidget>(form, "tab1").setCurrentIndex(1);
        const support::ScriptedChoosers choosers({PathTo("letters")});
        support::ClickOn(Find<QPushButton>(form, "cmdFolder"));
        support::ClickOn(Find<QPushButton>(form, "cmdFolder")); // cancelled
        EXPECT_EQ("Select Document Directory", choosers.Asked()[0].title);
        Find<QCheckBox>(form, "chkAssociateDocs").click();
        form.close();
    }
    EXPECT_EQ(PathTo("letters"), core::Config().DocDirectory);
    EXPECT_TRUE(core::Config().AssociateDocs);
    frmDocMgmt& again = OpenForm();
    EXPECT_FALSE(Find<QTableWidget>(again, "grd").isColumnHidden(1));
    EXPECT_TRUE(Find<QCheckBox>(again, "chkAssociateDocs").isChecked());
}

TEST_F(DocMgmtScreen, OffersTheProgramsOwnTemplates) {
    std::filesystem::create_directories(PathTo("Templates"));
    MakeFile("Templates/Late Notice.rtf", "{\\rtf1}");
    MakeFile("Templates/My own.rtf", "{\\rtf1}");
    frmDocMgmt& form = OpenForm();
    auto& shipped = Find<QPushButton>(form, "cmdShipped");
    ASSERT_TRUE(shipped.isVisible());
    EXPECT_TRUE(Portray(form, "frmDocMgmt-empty").empty());
    support::ClickOn(shipped);
    EXPECT_EQ("Late Notice", Ask("SELECT Description FROM Doc WHERE selLease = True"));
    EXPECT_EQ("2", Ask("SELECT Count(*) FROM Doc"));
    EXPECT_FALSE(shipped.isVisible()) << "all of them are on the list";
    Find<QTableWidget>(form, "grd").setCurrentCell(0, 0);
    EXPECT_TRUE(Portray(form, "frmDocMgmt").empty());
}

} // namespace
} // namespace support
