#include <QGroupBox>

#include "books/screens/frmAutoEvent.h"
#include "books/screens/frmAutoEventList.h"
#include "core/EditRecord.h"
#include "support/Books.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmAutoEvent;
using books::screens::frmAutoEventList;

class AutoEventTest : public ScreenTest {
  protected:
    // A mortgage without an account number ends its list.
    AutoEventTest() { Run("DELETE * FROM Mortgage WHERE IdMortgage = 51"); }

    static QPointer<frmAutoEvent> Open(std::int32_t id = 0) { return Show<frmAutoEvent>(id); }
    static std::string Row(std::string_view fields, int id = 1000) {
        return support::Rows(core::App().Connection,
                             "SELECT " + std::string(fields) +
                                 " FROM AutoEvent WHERE IdAutoEvent = " + std::to_string(id),
                             "NULL")
            .at(0);
    }
    static bool TabIsOpen(const frmAutoEvent& form, int tab) {
        return Find<QTabWidget>(form, "tabs").isTabEnabled(tab);
    }
};

TEST_F(AutoEventTest, SavesAScheduledEventWithItsTransaction) {
    const auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Auto Event"));
    EXPECT_EQ(Text(*form, "lblLastRun"), "Never");
    EXPECT_FALSE(TabIsOpen(*form, 1));
    Type(Find<QLineEdit>(*form, "txtDescription"), "Owner's draw");
    Type(Find<QLineEdit>(*form, "txtIntervalPeriod"), "2");
    Choose(*form, "cboIntervalType", "Week");
    Choose(*form, "cboEventAction", "Process Transaction");
    EXPECT_TRUE(TabIsOpen(*form, 1));
    EXPECT_TRUE(TabIsOpen(*form, 2));
    Choose(*form, "cboFrom", "River Bank");
    Choose(*form, "cboToType", "Tenant");
    Choose(*form, "cboTo", "Zu, Li");
    Find<QLineEdit>(*form, "txtAmount").setText(QStringLiteral("12.5"));
    Choose(*form, "cboCategory", "Repairs");
    Choose(*form, "cboLease", "Smith, 12 Elm St B");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(
        Row("EventType, Description, Enabled, Alert, IntervalType, IntervalPeriod, LastRun, "
            "EventAction, DebitType, DebitId, CreditType, CreditId, Amount, TaxCategory, IEN, "
            "IdLease, IdTenant, IdBuilding, IdUnit, IdMortgage, IdWorkOrder"),
        "1|Owner's draw|True|False|2|2|NULL|1|1|60|5|32|12.5|Repairs|1|40|30|10|20|0|0");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Auto Event: Owner's draw"));
    EXPECT_EQ(Text(*form, "cboTo"), "Zu, Li");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(AutoEventTest, SeedsANewEventOfADayOfTheMonth) {
    struct Case {
        const char* day;
        const char* lastRun;
    };
    int id = 1000;
    for (const auto& [day, lastRun] :
         {Case{"18", "05/18/2024"}, Case{"17", "04/17/2024"}, Case{"31", "05/31/2024"}}) {
        const auto form = Open();
        Type(Find<QLineEdit>(*form, "txtDescription"), "x");
        Type(Find<QLineEdit>(*form, "txtIntervalPeriod"), day);
        Choose(*form, "cboIntervalType", "Day of Month");
        ClickAction(*form, "APPLY");
        EXPECT_EQ(Row("LastRun", id), lastRun);
        EXPECT_EQ(Find<QLabel>(*form, "lblLastRun").text().toStdString(), lastRun);
        Run("UPDATE AutoEvent SET LastRun = '01/01/2024' WHERE IdAutoEvent = " +
            std::to_string(id));
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Row("LastRun", id), "01/01/2024") << "only a new event is seeded";
        ++id;
    }
}

TEST_F(AutoEventTest, StartsAStoredEventAgainWhenItsIntervalIsChanged) {
    struct Case {
        const char* period;
        const char* interval;
        const char* shown;
        const char* lastRun;
    };
    for (const auto& [period, interval, shown, lastRun] : {
             Case{"1", "Month", "05/01/2024", "05/01/2024"},
             {"18", "Day of Month", "05/01/2024 (starts again when saved)", "05/18/2024"},
             {"5", "Day of Month", "05/01/2024 (starts again when saved)", "04/05/2024"},
             {"2", "Month", "05/01/2024 (starts again when saved)", ""},
             {"1", "Week", "05/01/2024 (starts again when saved)", ""},
         }) {
        Run("DELETE * FROM AutoEvent");
        Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, IntervalType, "
            "IntervalPeriod, LastRun) VALUES (900, 1, 'Draw', True, 3, 1, '05/01/2024')");
        const auto form = Open(900);
        Choose(*form, "cboIntervalType", interval);
        Type(Find<QLineEdit>(*form, "txtIntervalPeriod"), period);
        EXPECT_EQ(Find<QLabel>(*form, "lblLastRun").text().toStdString(), shown);
        Find<QCheckBox>(*form, "chkAlert").click();
        ClickAction(*form, "APPLY");
        EXPECT_EQ(Row("LastRun", 900), lastRun) << period << " " << interval;
        // Once saved it goes on from there.
        Find<QCheckBox>(*form, "chkAlert").click();
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Row("LastRun", 900), lastRun);
        SettleEvents();
    }
}

TEST_F(AutoEventTest, WaitsForThePaymentsThatTheProgramPosts) {
    Run("DELETE * FROM TransCategory WHERE Category = 'Rent Payment'");
    const auto form = Open();
    const auto& box = Find<QComboBox>(*form, "cboTriggerCategory");
    for (const char* category : {"Rent Payment", "Partial Rent Payment", "Rent Subsidy Payment",
                                 "Deposit Payment", "Mortgage Payment", "Supplies"}) {
        EXPECT_GE(box.findText(QLatin1String(category)), 0) << category;
    }
    EXPECT_LT(Find<QComboBox>(*form, "cboCategory").findText("Rent Subsidy Payment"), 0);
}

TEST_F(AutoEventTest, SavesATriggeredEventWhatsoeverItsInterval) {
    const auto form = Open();
    Find<QRadioButton>(*form, "optTriggered").click();
    EXPECT_FALSE(Find<QGroupBox>(*form, "grpSchedule").isVisible());
    EXPECT_TRUE(Find<QGroupBox>(*form, "grpTrigger").isVisible());
    Find<QLineEdit>(*form, "txtIntervalPeriod").setText(QStringLiteral("0"));
    Type(Find<QLineEdit>(*form, "txtDescription"), "Fee");
    Choose(*form, "cboTriggerType", "Tenant");
    Choose(*form, "cboTrigger", "Smith, John Q");
    Choose(*form, "cboTriggerCategory", "Rent Payment");
    Find<QCheckBox>(*form, "chkAlert").click();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Row("EventType, Alert, TriggerType, TriggerID, TriggerTaxCategory, EventAction, "
                  "IntervalPeriod, DebitId, TaxCategory, LastRun"),
              "2|True|5|30|Rent Payment|0|0|0|No Category Selected|NULL");
}

TEST_F(AutoEventTest, TellsAllThatIsWrongAtOnce) {
    const auto form = Open();
    Find<QLineEdit>(*form, "txtDescription").setText(QStringLiteral("  "));
    Find<QLineEdit>(*form, "txtIntervalPeriod").setText(QStringLiteral("0.5"));
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "No description was entered for this event.\n"
                                    "Interval period must be greater then zero.\n"});
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM AutoEvent"), "0");
}

TEST_F(AutoEventTest, ShowsAnEventWhosePartiesAreGone) {
    Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, IntervalType, "
        "IntervalPeriod, LastRun, EventAction, DebitType, DebitId, CreditType, CreditId, "
        "TaxCategory, IEN, Amount, TriggerID) VALUES (900, 1, 'Old', False, 5, 3, '02/29/2024', "
        "1, 1, 0, 5, 4711, 'Old Words', 2, 7, 0)");
    const auto form = Open(900);
    EXPECT_EQ(Text(*form, "cboFrom"), "[ No Account Selected ]");
    EXPECT_EQ(Text(*form, "cboTo"), "[ No Tenant Selected ]");
    EXPECT_EQ(Text(*form, "lblLastRun"), "02/29/2024");
    EXPECT_EQ(Text(*form, "cboIntervalType"), "Year");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Row("Enabled, DebitId, CreditType, CreditId, TaxCategory, IEN, LastRun", 900),
              "False|0|5|4711|Old Words|2|02/29/2024");
}

TEST_F(AutoEventTest, TheListOpensAddsAndDeletesEvents) {
    Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, LastRun) "
        "VALUES (900, 1, 'Draw', True, '02/29/2024')");
    Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, LastRun) "
        "VALUES (901, 2, 'Fee', False, '02/29/2024')");
    std::vector<std::int32_t> opened;
    core::RegisterOpener(core::kAutoEvent,
                         [&](const core::EditRequest& request) { opened.push_back(request.id); });
    const QPointer<frmAutoEventList> form(new frmAutoEventList);
    form->Setup();
    auto& grid = Find<core::grid::Grid>(*form, "grd");
    EXPECT_EQ(support::GridText(grid),
              "Description|Enabled|Last Ran\n"
              "Draw|Yes|02/29/2024\n"
              "Fee|No|n/a\n");
    ASSERT_TRUE(grid.SelectId(901));
    QTest::keyClick(&grid, Qt::Key_Return);
    ClickOn(Find<QToolButton>(*form, "cmdAdd"));
    EXPECT_EQ(opened, (std::vector<std::int32_t>{901, 0}));
    Answer({true});
    ClickOn(Find<QToolButton>(*form, "cmdDelete"));
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected Auto Event?\n\nFee"});
    EXPECT_EQ(support::GridText(grid), "Description|Enabled|Last Ran\nDraw|Yes|02/29/2024\n");
    Run("UPDATE AutoEvent SET LastRun = '03/29/2024'");
    core::NotifyAll(core::kAutoEvent, core::kRecordsChanged, 0);
    EXPECT_EQ(support::GridText(grid), "Description|Enabled|Last Ran\nDraw|Yes|03/29/2024\n");
    EXPECT_EQ(LookFaults(*form, "frmAutoEventList"), Said{});
    core::RegisterOpener(core::kAutoEvent, {});
}

TEST_F(AutoEventTest, LooksAndReadsRight) {
    Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Description, Enabled, IntervalType, "
        "IntervalPeriod, LastRun, EventAction, DebitType, DebitId, CreditType, CreditId, "
        "TaxCategory, IEN, Amount, TriggerType, TriggerID) VALUES (900, 1, 'Draw of the owner', "
        "True, 3, 1, '02/29/2024', 1, 1, 60, 1, 62, 'Repairs', 1, 700, 1, 60)");
    const auto form = Open(900);
    EXPECT_EQ(LookFaultsOfTabs(*form, "frmAutoEvent"), Said{});
    Find<QTabWidget>(*form, "tabs").setCurrentIndex(0);
    Find<QRadioButton>(*form, "optTriggered").click();
    SettleEvents();
    EXPECT_EQ(TabOrderFaults(*form), Said{});
    EXPECT_EQ(Portray(*form, "frmAutoEventTriggered"), Said{});
}

} // namespace
} // namespace support
