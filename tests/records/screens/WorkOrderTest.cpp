#include "records/screens/frmWorkOrder.h"

#include "records/screens/Fields.h"
#include "records/screens/frmWoItem.h"
#include "removal/DeleteRecord.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmWoItem;
using records::screens::frmWorkOrder;

const std::string kNoDescription =
    "Whoa!: The following errors have occured:\n\nA description must be entered.\n";

class WorkOrderTest : public ScreenTest {
  protected:
    WorkOrderTest() {
        for (const char* sql : {
                 "INSERT INTO Account (IdAccount, ShowAs, AccountType) "
                 "VALUES (63, 'Fix-It Co', 'Vendor')",
                 "INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount) VALUES (90, 10, 61)",
                 "INSERT INTO Room (IdRoom, IdUnit, RoomType) VALUES (81, 22, 'Garage')",
             }) {
            Run(sql);
        }
    }
    QPointer<frmWorkOrder> Open(std::int32_t id = 0, std::int32_t idUnit = 0) {
        return Show<frmWorkOrder>(id, idUnit);
    }
    static QString Chosen(const frmWorkOrder& form, const char* combo) {
        return Find<QComboBox>(form, combo).currentText();
    }
    static bool CanOpenTab(const frmWorkOrder& form, int tab) {
        return Find<QTabWidget>(form, "tabs").isTabEnabled(tab);
    }
};

const std::vector<FieldEntry> kFields = {
    {"txtDescription", "Fix Bob's \"stove\"", "ShortDesc", ""},
    {"cboIdUnit", "12 Elm St B", "IdUnit", "20"},
    {"cboIdRoom", "Kitchen", "IdRoom", "80"},
    {"cboIdAppliance", "Stove", "IdAppliance", "70"},
    {"cboIdOwner", "Al Owner", "IdOwner", "61"},
    {"cboInitiator", "The neighbour", "Initiator", ""},
    {"chkPermission", "x", "Permission", "True"},
    {"cboStatus", "Completed", "Status", ""},
    {"txtPriority", "2", "Priority", ""},
    {"dpDateOpened", "05/01/2024", "DateOpened", ""},
    {"dpDateClosed", "05/16/2024", "DateClosed", ""},
    {"cboIdVendor", "Fix-It Co", "IdVendor", "63"},
    {"txtRep", "Ann O'Hare", "Rep", ""},
    {"txtTech", "Bo", "Tech", ""},
    {"txtEstimate", "80.00", "Estimate", "80"},
    {"txtLimit", "120.50", "Limit", "120.5"},
    {"txtActual", "1,234.56", "Actual", "1234.56"},
    {"txtm", "Twice already", "Notes", ""},
    {"chkHide", "x", "Hide", "True"},
};

TEST_F(WorkOrderTest, ANewOneTakesEveryFieldAndShowsItAgain) {
    auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New WorkOrder"));
    EXPECT_EQ(Text(*form, "lblTitle"), "New WorkOrder (Press Apply to Save)");
    EXPECT_EQ(Chosen(*form, "cboStatus"), QStringLiteral("Open"));
    EXPECT_EQ(Chosen(*form, "cboInitiator"), QString());
    EXPECT_FALSE(CanOpenTab(*form, 1));
    support::Enter(*form, kFields);
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(StoredFaults("WorkOrder", "IdWorkOrder = 1000", kFields), Said{});
    EXPECT_EQ(Ask("SELECT IdParent FROM WorkOrder"), "0");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("WorkOrder: Fix Bob's \"stove\""));
    EXPECT_EQ(Text(*form, "lblTitle"), "Editing WorkOrder: Fix Bob's \"stove\"");
    EXPECT_TRUE(CanOpenTab(*form, 1));
    ClickAction(*form, "CLOSE");
    form = Open(1000);
    EXPECT_EQ(ShownFaults(*form, kFields), Said{});
    EXPECT_FALSE(form->Dirty());
}

TEST_F(WorkOrderTest, AsksForADescriptionAlone) {
    const auto form = Open();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kNoDescription});
    Type(Find<QLineEdit>(*form, "txtDescription"), "Roof");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdUnit + IdRoom + IdVendor + IdOwner FROM WorkOrder"), "0");
    EXPECT_EQ(Ask("SELECT Status FROM WorkOrder"), "Open");
}

TEST_F(WorkOrderTest, TheUnitDecidesWhatIsOffered) {
    const auto form = Open(0, 20);
    EXPECT_EQ(Chosen(*form, "cboIdUnit"), QStringLiteral("12 Elm St B"));
    support::Choose(*form, "cboIdRoom", "Kitchen");
    support::Choose(*form, "cboIdOwner", "Al Owner");
    support::Choose(*form, "cboIdUnit", "Oak Rd 1");
    EXPECT_EQ(Chosen(*form, "cboIdRoom"), QStringLiteral("[ No Room Selected ]"));
    EXPECT_EQ(Chosen(*form, "cboIdOwner"), QStringLiteral("[ No Account Selected ]"));
    support::Choose(*form, "cboIdRoom", "Garage");
    EXPECT_EQ(Find<QComboBox>(*form, "cboIdRoom").count(), 2);
    support::Choose(*form, "cboIdUnit", "[ No Unit Selected ]");
    EXPECT_EQ(Find<QComboBox>(*form, "cboIdRoom").count(), 1);
}

TEST_F(WorkOrderTest, VendorFieldsWaitForAVendorAndKeepTheirValues) {
    auto form = Open();
    const auto& rep = Find<QLineEdit>(*form, "txtRep");
    EXPECT_FALSE(rep.isEnabled());
    Type(Find<QLineEdit>(*form, "txtDescription"), "Roof");
    support::Choose(*form, "cboIdVendor", "Fix-It Co");
    EXPECT_TRUE(rep.isEnabled());
    Type(Find<QLineEdit>(*form, "txtRep"), "Ann");
    support::Choose(*form, "cboIdVendor", "[ No Account Selected ]");
    EXPECT_FALSE(rep.isEnabled());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Rep FROM WorkOrder"), "Ann");
    form = Open(1000);
    EXPECT_FALSE(Find<QLineEdit>(*form, "txtRep").isEnabled());
    EXPECT_EQ(Text(*form, "txtRep"), "Ann");
}

TEST_F(WorkOrderTest, KeepsWhatItDoesNotOffer) {
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc, Status, IdUnit, IdRoom, IdParent) "
        "VALUES (500, 'Old', 'On Hold', 20, 80, 7)");
    auto form = Open(500);
    EXPECT_EQ(Chosen(*form, "cboStatus"), QStringLiteral("On Hold"));
    EXPECT_EQ(Find<QLineEdit>(*form, "dpDateOpened").text(), QString()) << "unset, not today";
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status & '|' & IdRoom & '|' & IdParent FROM WorkOrder"), "On Hold|80|7");
}

TEST_F(WorkOrderTest, FollowsOtherScreens) {
    const auto form = Open(0, 20);
    Type(Find<QComboBox>(*form, "cboInitiator"), "Somebody");
    support::Choose(*form, "cboIdVendor", "Fix-It Co");
    support::Choose(*form, "cboIdRoom", "Kitchen");
    Run("UPDATE Unit SET Unit = 'B2' WHERE IdUnit = 20");
    Run("INSERT INTO Tenant (IdTenant, LastName, FirstName) VALUES (33, 'Ames', 'Al')");
    Run("UPDATE Account SET ShowAs = 'Fix-It Ltd' WHERE IdAccount = 63");
    Run("UPDATE Room SET RoomType = 'Cuisine' WHERE IdRoom = 80");
    for (const core::RecordKind kind : {core::kUnit, core::kTenant, core::kAccount, core::kRoom}) {
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    }
    EXPECT_EQ(Chosen(*form, "cboIdUnit"), QStringLiteral("12 Elm St B2"));
    EXPECT_EQ(Chosen(*form, "cboInitiator"), QStringLiteral("Somebody"));
    EXPECT_GE(Find<QComboBox>(*form, "cboInitiator").findText(QStringLiteral("Ames, Al")), 0);
    EXPECT_EQ(Chosen(*form, "cboIdVendor"), QStringLiteral("Fix-It Ltd"));
    EXPECT_EQ(Chosen(*form, "cboIdRoom"), QStringLiteral("Cuisine"));
    Run("DELETE * FROM Account WHERE IdAccount = 63");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_FALSE(Find<QLineEdit>(*form, "txtRep").isEnabled());
}

TEST_F(WorkOrderTest, HistoryIsWrittenToItsOrder) {
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc) VALUES (500, 'Roof')");
    const auto order = Open(500);
    QPointer<frmWoItem> item(new frmWoItem);
    item->Setup(0, 500);
    EXPECT_EQ(item->windowTitle(), QStringLiteral("Adding New History"));
    ClickAction(*item, "CLOSE");
    EXPECT_EQ(Heard(), Said{kNoDescription});
    const std::vector<FieldEntry> fields = {{"txtDescription", "Called Bob's", "Description", ""},
                                            {"dp", "02/29/2024", "EntryDate", ""},
                                            {"txtm", "No answer", "Notes", ""}};
    EXPECT_EQ(Text(*item, "dp"), "05/17/2024");
    support::Enter(*item, fields);
    ClickAction(*item, "APPLY");
    EXPECT_EQ(item->windowTitle(), QStringLiteral("History: Called Bob's"));
    EXPECT_EQ(StoredFaults("WOItem", "IdWOItem = 1000 AND IdWorkOrder = 500", fields), Said{});
    ClickAction(*item, "CLOSE");
    EXPECT_EQ(support::GridText(Find<core::grid::Grid>(*order, "grd")),
              "Entry Date|Description\n02/29/2024|Called Bob's\n");
    Run("DELETE * FROM WOItem");
    item = new frmWoItem;
    item->Setup(1000, 0);
    EXPECT_EQ(item->Id(), 0) << "the entry was deleted in the meantime";
    item->CloseUnasked();
}

TEST_F(WorkOrderTest, HistoryIsRemovedFromItsList) {
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc) VALUES (500, 'Roof')");
    Run("INSERT INTO WOItem (IdWOItem, IdWorkOrder, Description) VALUES (510, 500, 'Called')");
    Run("INSERT INTO WOItem (IdWOItem, IdWorkOrder, Description) VALUES (511, 500, 'Came')");
    const auto form = Open(500);
    Find<QTabWidget>(*form, "tabs").setCurrentIndex(1);
    Find<core::grid::Grid>(*form, "grd").SelectId(511);
    Answer({true});
    support::ClickOn(Find<QToolButton>(Find<QWidget>(*form, "ucHistory"), "cmdDelete"));
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected Work Order History?\n\nCame"});
    EXPECT_EQ(Ask("SELECT MAX(IdWOItem) FROM WOItem"), "510");
    EXPECT_EQ(support::GridText(Find<core::grid::Grid>(*form, "grd")),
              "Entry Date|Description\n |Called\n");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(WorkOrderTest, ComesBackUnderItsNumberWhenSavedAfterItsRemoval) {
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc, IdUnit) VALUES (500, 'Roof', 20)");
    Run("INSERT INTO FileObject (IdFileObject, dbType, IdOwner, FilePath) "
        "VALUES (520, 6, 500, '/a.txt')");
    const auto form = Open(500);
    EXPECT_TRUE(removal::DeleteRecord(core::kWorkOrder, 500, removal::Confirm::DontAsk));
    EXPECT_EQ(Ask("SELECT Count(*) FROM WorkOrder"), "0");
    EXPECT_TRUE(form && form->isVisible());
    Answer({true}); // to whether it is to be saved again
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT ShortDesc FROM WorkOrder WHERE IdWorkOrder = 500 AND IdUnit = 20"),
              "Roof");
    EXPECT_EQ(Ask("SELECT Count(*) FROM FileObject"), "0");
}

TEST_F(WorkOrderTest, AChangeIsLeftOnlyWhenAgreed) {
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc) VALUES (500, 'Roof')");
    const auto form = Open(500);
    Type(Find<QLineEdit>(*form, "txtDescription"), "Cellar");
    Answer({false, true});
    ClickAction(*form, "CANCEL");
    EXPECT_TRUE(form && form->isVisible());
    ClickAction(*form, "CANCEL");
    EXPECT_EQ(Heard(), (Said{"Whoa!: Close without saving changes?",
                             "Whoa!: Close without saving changes?"}));
    EXPECT_EQ(Ask("SELECT ShortDesc FROM WorkOrder"), "Roof");
}

} // namespace
} // namespace support
