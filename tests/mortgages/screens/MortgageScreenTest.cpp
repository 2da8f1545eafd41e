#include <QHelpEvent>
#include <QTabBar>
#include <QToolTip>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QChartView>
#include <QtCharts/QLegend>
#include <QtCharts/QLineSeries>

#include "core/binding/DateEdit.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/screens/MortgageForm.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "mortgages/screens/frmMtgLog.h"

namespace tests {

namespace {

using mortgages::screens::frmMortgagePayment;
using mortgages::screens::frmMtgLog;

TEST_F(MortgageScreen, ShowsALoanWithItsOriginationLocked) {
    const auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Mortgage: First loan"));
    EXPECT_EQ(Text(*form, "cboIdMortgagee"), "Ann's Loans");
    EXPECT_EQ(Text(*form, "txtOrigPV"), "120,000.00");
    EXPECT_EQ(Text(*form, "txtOrigRate"), "6");
    EXPECT_EQ(Text(*form, "txtOrigPmt"), "719.46");
    EXPECT_EQ(Text(*form, "txtNextDue"), "01/01/2024");
    EXPECT_EQ(Text(*form, "lblRemaining"), "of 360, 360 left");
    EXPECT_EQ(Text(*form, "lblSplit"), "principal 119.46, interest 600.00");
    EXPECT_EQ(Text(*form, "txtBalance"), "120,000.00");
    EXPECT_FALSE(form->Dirty());
    EXPECT_FALSE(Find<QWidget>(*form, "txtOrigPV").isEnabled());
    EXPECT_FALSE(Find<QWidget>(*form, "dpDue").isEnabled());
    EXPECT_FALSE(Find<QWidget>(*form, "txtARMPerCap").isEnabled());
    for (const char* locked : {"txtXPriAll", "chkIntOnly", "chkARM"})
        EXPECT_FALSE(Find<QWidget>(*form, locked).isEnabled()) << locked;
    for (const char* open : {"chkBalloon", "chkPPM"})
        EXPECT_TRUE(Find<QWidget>(*form, open).isEnabled()) << open;
    Find<QCheckBox>(*form, "chkPPM").click();
    EXPECT_TRUE(Find<QWidget>(*form, "txtPPMPct").isEnabled());
    EXPECT_TRUE(form->Dirty());
    for (const char* editable : {"txtXPriAll", "chkIntOnly", "chkARM"})
        EXPECT_TRUE(Find<QWidget>(*Open(0), editable).isEnabled()) << editable;
}

TEST_F(MortgageScreen, ANewLoanIsReckonedAsItIsTypedAndAskedAboutOnce) {
    const auto form = Open(0);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Mortgage"));
    EXPECT_EQ(Text(*form, "cboIdBuilding"), "12 Elm St");
    Type(Find<QLineEdit>(*form, "txtOrigPV"), "50000");
    Type(Find<QLineEdit>(*form, "txtOrigPer"), "24");
    Type(Find<QLineEdit>(*form, "txtOrigRate"), "12");
    Type(Find<QLineEdit>(*form, "dpDue"), "3/31/2024");
    EXPECT_EQ(ScheduleRows(*form), 24);
    EXPECT_EQ(Text(*form, "txtOrigPmt"), "2,353.67");
    Find<QCheckBox>(*form, "chkBalloon").setChecked(true);
    Type(Find<QLineEdit>(*form, "txtBalloonPer"), "12");
    EXPECT_EQ(ScheduleRows(*form), 12);
    EXPECT_EQ(Text(*form, "txtBalloonPmt"), "26,490.78");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\nAn account number "
                            "entered.\n"});
    Type(Find<QLineEdit>(*form, "txtAccountNumber"), "N-9");
    Choose(*form, "cboIdMortgagee", "Ann's Loans");
    ClickAction(*form, "APPLY");
    ASSERT_EQ(Heard().size(), 1U); // No stops the save
    EXPECT_EQ(Ask("SELECT Count(*) FROM Mortgage"), "1");
    EXPECT_TRUE(form->Dirty());
    Answer({true});
    ClickAction(*form, "APPLY");
    const std::string id = std::to_string(form->Id());
    const auto stored = [&](const char* fields) {
        return Ask("SELECT " + std::string(fields) + " FROM Mortgage WHERE IdMortgage = " + id);
    };
    EXPECT_EQ(stored("Description"), "Ann's Loans N-9");
    EXPECT_EQ(stored("BalloonMtg"), "True");
    EXPECT_EQ(stored("Status + '|' + PmtStatus + '|' + DateUpdated + '|' + FirstDue"),
              "Current|Late|05/17/2024|03/31/2024");
    EXPECT_EQ(Ask("SELECT Count(*) FROM MortgageLog WHERE IdMortgage = " + id), "2");
    EXPECT_FALSE(form->Dirty());
    EXPECT_FALSE(Find<QWidget>(*form, "txtOrigPV").isEnabled());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(stored("BalloonMtg"), "True");
}

TEST_F(MortgageScreen, TermsThatCannotBeReckonedAreToldBesideTheSchedule) {
    const auto form = Open(0);
    GoTo(*form, "tabOrigination");
    Type(Find<QLineEdit>(*form, "txtXPriAll"), "0");
    Type(Find<QLineEdit>(*form, "txtOrigPer"), "");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(ScheduleRows(*form), 1); // at least one period
    Type(Find<QLineEdit>(*form, "txtOrigPer"), "99999");
    EXPECT_EQ(ScheduleRows(*form), 1200);
}

TEST_F(MortgageScreen, ShowsTheScheduleAndItsYears) {
    const auto form = Open();
    EXPECT_EQ(Captions(*form), "No.;Due;Rate;Pmt;Xtra Pri;Balance;");
    Find<QCheckBox>(*form, "chkViewDetail").setChecked(true);
    Find<QCheckBox>(*form, "chkViewYTD").setChecked(true);
    EXPECT_EQ(Captions(*form),
              "No.;Due;Rate;Pmt;Pmt Yr;Pri;Xtra Pri;Pri Yr;Int;Int Yr;Balance;Remaining;PPM "
              "Penalty;");
    const auto& chart = *Find<QChartView>(*form, "chtYears").chart();
    ASSERT_EQ(chart.series().size(), 3);
    Said names;
    for (const auto* series : chart.series())
        names.push_back(platform::qt::FromScreen(series->name()));
    EXPECT_EQ(names, (Said{"Balance", "Principle TTD", "Interest TTD"}));
    auto* years = qobject_cast<QBarCategoryAxis*>(chart.axes(Qt::Horizontal).front());
    ASSERT_EQ(years->count(), 30);
    EXPECT_EQ(years->categories().at(1), QStringLiteral("Year 2"));
    const auto* balance = qobject_cast<QLineSeries*>(chart.series().front());
    EXPECT_EQ(balance->at(0).y(), 120'000);
    EXPECT_NEAR(balance->at(1).y(), 118'652.6, 0.1); // the twelfth period's first balance

    GoTo(*form, "tabAmortization");
    auto& view = Find<QChartView>(*form, "chtYears");
    const QPointF place = view.chart()->mapToPosition({1, 1000}, view.chart()->series().front());
    const QPoint under = view.mapFromScene(view.chart()->mapToScene(place));
    QHelpEvent hover(QEvent::ToolTip, under, view.viewport()->mapToGlobal(under));
    QApplication::sendEvent(view.viewport(), &hover);
    EXPECT_TRUE(QToolTip::text().startsWith(QStringLiteral("Year 2\nBalance: 118,652.58")))
        << QToolTip::text().toStdString();

    Choose(*form, "cboChartType", "Bars");
    Find<QCheckBox>(*form, "chkViewLegend").setChecked(false);
    EXPECT_EQ(chart.series().size(), 1);
    EXPECT_FALSE(chart.legend()->isVisible());
    EXPECT_FALSE(form->Dirty());
    form->CloseUnasked();
    const auto again = Open();
    EXPECT_EQ(Text(*again, "cboChartType"), "Bars");
    EXPECT_TRUE(Find<QCheckBox>(*again, "chkViewYTD").isChecked());
}

TEST_F(MortgageScreen, MovesTheDueDateOnlyWhenAgreed) {
    const auto form = Open();
    ClickOn(Find<QPushButton>(*form, "cmdIncDueDate"));
    EXPECT_EQ(Text(*form, "txtCurrentPeriod"), "1");
    Answer({true, true, true});
    ClickOn(Find<QPushButton>(*form, "cmdIncDueDate"));
    ClickOn(Find<QPushButton>(*form, "cmdIncDueDate"));
    ClickOn(Find<QPushButton>(*form, "cmdDecDueDate"));
    EXPECT_EQ(Heard(),
              (Said{"Confirm Action: Increment Due Date?", "Confirm Action: Increment Due Date?",
                    "Confirm Action: Decrement Due Date?"}));
    EXPECT_EQ(Text(*form, "txtNextDue"), "02/01/2024");
    EXPECT_TRUE(form->Dirty());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Loan("NextDue"), "02/01/2024");
    EXPECT_EQ(Loan("CurrentPeriod"), "2");
}

TEST_F(MortgageScreen, APaymentMadeHereShowsAndIsRightHoweverTheScreenIsLeft) {
    const auto form = Open();
    GoTo(*form, "tabPayments");
    Find<QLineEdit>(*form, "txtDescription").setText(QStringLiteral("Renamed"));
    ClickOn(Find<QPushButton>(*form, "cmdPayment"));
    const auto payment = Opened<frmMortgagePayment>();
    ASSERT_TRUE(payment);
    Trigger(*payment, "mnuCheckAll");
    ClickAction(*payment, "SUBMIT");
    EXPECT_EQ(Text(*form, "txtNextDue"), "04/01/2024");
    EXPECT_EQ(Text(*form, "txtDescription"), "Renamed") << "what is being changed stays";
    EXPECT_EQ(ListRows(*form, "lvw"), Said{});
    Find<QTabBar>(*form, "tab").setCurrentIndex(1);
    EXPECT_EQ(ListRows(*form, "lvw").size(), 10U);
    Answer({true});
    ClickAction(*form, "CANCEL");
    EXPECT_EQ(Loan("NextDue"), "04/01/2024");
    EXPECT_EQ(Loan("Description"), "First loan");
}

TEST_F(MortgageScreen, APaymentSubmittedAfterItClosedLeavesTheRightDueDate) {
    const auto form = Open();
    GoTo(*form, "tabPayments");
    ClickOn(Find<QPushButton>(*form, "cmdPayment"));
    const auto payment = Opened<frmMortgagePayment>();
    ASSERT_TRUE(payment);
    ClickAction(*form, "CANCEL");
    support::SettleEvents();
    Tick(*payment, 0, true);
    ClickAction(*payment, "SUBMIT");
    EXPECT_EQ(Loan("NextDue"), "02/01/2024");
    EXPECT_EQ(Loan("Format(CurrentPV, '0.00')"), "119880.54");
}

TEST_F(MortgageScreen, ChargesAreSelectedByKindAndDeletedTogether) {
    const auto form = Open();
    GoTo(*form, "tabPayments");
    Trigger(*form, "mnuSelectPI");
    ClickOn(Find<QPushButton>(*form, "cmdEditDelete"));
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete all selected items?\n\n"
                            "05/01/2024  Mortgage P & I Payment Due  719.46\n"
                            "04/01/2024  Mortgage P & I Payment Due  719.46\n"
                            "03/01/2024  Mortgage P & I Payment Due  719.46"});
    EXPECT_EQ(ListRows(*form, "lvw").size(), 9U) << "No keeps them";
    Answer({true});
    ClickOn(Find<QPushButton>(*form, "cmdEditDelete"));
    EXPECT_EQ(ListRows(*form, "lvw").size(), 6U);
    EXPECT_EQ(Ask("SELECT Count(*) FROM MortgageLog WHERE Flags = 1"), "0");
    Trigger(*form, "mnuSelectOther");
    EXPECT_EQ(Find<QTreeWidget>(*form, "lvw").selectedItems().size(), 6);
}

TEST_F(MortgageScreen, PaysTheLoanOff) {
    const auto form = Open();
    Answer({true});
    Trigger(*form, "mnuPayoff");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[1],
              "Payoff Posted: A payoff charge has been posted and all other charges have been "
              "removed. To complete the\nyou need to make the final payment. Once this has been "
              "completed the mortgage status will\nchange to closed and no more charges will be "
              "posted.");
    EXPECT_EQ(ListRows(*form, "lvw"), Said{"05/17/2024|Mortgage Payoff|Mortgage Payoff|119.46|"
                                           "119,880.54|600.00|0.00|120,600.00"});
    ClickOn(Find<QPushButton>(*form, "cmdPayment"));
    const auto payment = Opened<frmMortgagePayment>();
    Tick(*payment, 0, true);
    ClickAction(*payment, "SUBMIT");
    EXPECT_EQ(Text(*form, "txtStatus"), "Closed");
    EXPECT_EQ(Text(*form, "txtBalance"), "0.00");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Loan("Status"), "Closed");
    EXPECT_EQ(Loan("CurrentPV"), "0");
}

TEST_F(MortgageScreen, RepostsAndRollsForwardWhenAgreed) {
    const auto form = Open();
    const auto before = ListRows(*form, "lvw").size();
    Trigger(*form, "mnuReprocess");
    EXPECT_EQ(ListRows(*form, "lvw").size(), before);
    Answer({true});
    Trigger(*form, "mnuReprocess");
    EXPECT_GT(ListRows(*form, "lvw").size(), before);
    EXPECT_FALSE(Open(0)->findChild<QAction*>(QStringLiteral("mnuRollFOrward"))->isEnabled());
}

TEST_F(MortgageScreen, ABalloonSetOnASavedLoanStoresItsAmount) {
    const auto form = Open();
    Find<QCheckBox>(*form, "chkBalloon").click();
    Type(Find<QLineEdit>(*form, "txtBalloonPer"), "60");
    EXPECT_EQ(Text(*form, "txtBalloonPmt"), "111,665.23");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Loan("BalloonMtg"), "True");
    EXPECT_EQ(Loan("BalloonPer"), "60");
    EXPECT_EQ(Loan("Format(BalloonPmt, '0.00')"), "111665.23");
    EXPECT_EQ(Loan("Format(CurrentPV, '0.00')"), "120000.00");
}

TEST_F(MortgageScreen, AClosedLoanCannotMoveOn) {
    Run("UPDATE Mortgage SET CurrentPeriod = 361, CurrentPV = 0, NextDue = ''");
    const auto closed = Open();
    EXPECT_FALSE(Find<QWidget>(*closed, "cmdIncDueDate").isEnabled());
    EXPECT_TRUE(Find<QWidget>(*closed, "cmdDecDueDate").isEnabled());
    Run("UPDATE Mortgage SET CurrentPeriod = 1");
    const auto first = Open();
    EXPECT_TRUE(Find<QWidget>(*first, "cmdIncDueDate").isEnabled());
    EXPECT_FALSE(Find<QWidget>(*first, "cmdDecDueDate").isEnabled());
}

TEST_F(MortgageScreen, LooksRightWithEveryPartOpen) {
    const auto fresh = Open(0);
    GoTo(*fresh, "tabOrigination");
    for (const char* box : {"chkBalloon", "chkARM", "chkPPM"})
        Find<QCheckBox>(*fresh, box).setChecked(true);
    EXPECT_EQ(LookFaults(*fresh, "frmMortgage-new"), Said{});
    GoTo(*fresh, "tabAmortization");
    Choose(*fresh, "cboChartType", "Bars");
    Find<QCheckBox>(*fresh, "chkViewDetail").setChecked(true);
    EXPECT_EQ(LookFaults(*fresh, "frmMortgage-bars"), Said{});
}

} // namespace

} // namespace tests
