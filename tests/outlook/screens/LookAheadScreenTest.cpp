#include <gmock/gmock.h>

#include <QProgressBar>

#include "core/EditRecord.h"
#include "core/KindTable.h"
#include "core/Startup.h"
#include "outlook/screens/MonthView.h"
#include "outlook/screens/frmLookAhead.h"
#include "platform/qt/charts/SeriesChart.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "support/Books.h"
#include "support/screens/Screens.h"

namespace {

using core::grid::Grid;
using outlook::screens::frmLookAhead;
using outlook::screens::MonthView;
using platform::Date;
using platform::qt::FromScreen;
using support::ClickAction;
using support::ClickOn;
using support::Find;
using testing::HasSubstr;
using testing::IsEmpty;

class LookAheadScreen : public support::ScreenTest {
  protected:
    LookAheadScreen() {
        core::App().Connection.Close();
        platform::SetToday(Date(2026, 11, 21));
        shell::RegisterLogic();
        constexpr int kUnits = 12;
        shell::MakeSamplePortfolio(Folder() / "sample", kUnits, platform::Today());
        core::App().Connection.Open(Folder() / "sample" / "Vestrel.mdb");
        core::LoadBooks();
        for (const core::KindInfo& info : core::AllKinds()) {
            core::RegisterOpener(info.kind, [this](const core::EditRequest& request) {
                opened_.emplace_back(request.kind, request.id);
            });
        }
    }
    ~LookAheadScreen() override {
        for (const core::KindInfo& info : core::AllKinds())
            core::RegisterOpener(info.kind, {});
    }

    static QPointer<frmLookAhead> Open() {
        QPointer<frmLookAhead> form(new frmLookAhead);
        form->Setup();
        Settle(*form);
        return form;
    }
    /// Lets the look ahead come to its end.
    static void Settle(const QWidget& form) {
        const auto& progress = Find<QProgressBar>(form, "prgLook");
        constexpr int kLongest = 60'000;
        ASSERT_TRUE(QTest::qWaitFor([&] { return progress.isHidden(); }, kLongest));
        support::SettleEvents();
    }
    static int Rows(const QWidget& form) {
        return Find<Grid>(form, "lvwComing").Model().rowCount();
    }
    static std::string Summary(const QWidget& form) {
        return FromScreen(Find<QLabel>(form, "lblSummary").text());
    }
    static void ShowPage(const QWidget& form, int page) {
        Find<QTabWidget>(form, "tabs").setCurrentIndex(page);
        support::SettleEvents();
    }

    std::vector<std::pair<core::RecordKind, std::int32_t>> opened_;
};

TEST_F(LookAheadScreen, ShowsWhatIsComingAndChangesNothing) {
    const auto before = support::Dump(core::App().Connection);
    const QPointer<frmLookAhead> form = Open();
    const Grid& list = Find<Grid>(*form, "lvwComing");
    EXPECT_EQ(support::GridText(list).find("Date|What|For|Amount|Flow\n"), 0U);
    EXPECT_THAT(support::GridText(list), HasSubstr("12/01/2026|Rent|"));
    EXPECT_THAT(Summary(*form), HasSubstr("Until 12/21/2026, "));
    EXPECT_THAT(Summary(*form), HasSubstr("are left out."));
    const int paid = Rows(*form);
    ClickOn(Find<QCheckBox>(*form, "chkLateFees"));
    EXPECT_GT(Rows(*form), paid);
    EXPECT_EQ(Summary(*form).find("left out"), std::string::npos);

    support::Choose(*form, "cboDays", "Next 365 days");
    Settle(*form);
    EXPECT_THAT(Summary(*form), HasSubstr("Until 11/21/2027, "));
    EXPECT_EQ(support::Dump(core::App().Connection), before);
    EXPECT_THAT(Heard(), IsEmpty());

    form->close();
    support::SettleEvents();
    const QPointer<frmLookAhead> again = Open();
    EXPECT_EQ(Find<QComboBox>(*again, "cboDays").currentText(), QStringLiteral("Next 365 days"));
}

TEST_F(LookAheadScreen, TurnsPagesOfTheCalendar) {
    const QPointer<frmLookAhead> form = Open();
    ShowPage(*form, 1);
    auto& month = Find<MonthView>(*form, "tblMonth");
    const auto& title = Find<QLabel>(*form, "lblMonth");
    auto& earlier = Find<QToolButton>(*form, "cmdEarlier");
    auto& later = Find<QToolButton>(*form, "cmdLater");
    EXPECT_EQ(title.text(), QStringLiteral("November 2026"));
    EXPECT_EQ(month.CurrentDay(), Date(2026, 11, 21));
    EXPECT_FALSE(earlier.isEnabled());
    ClickOn(later);
    EXPECT_EQ(title.text(), QStringLiteral("December 2026"));
    EXPECT_EQ(month.CurrentDay(), Date(2026, 12, 1));
    EXPECT_FALSE(later.isEnabled()) << "the 30 days end in December";
    EXPECT_THAT(FromScreen(month.currentItem()->text()), HasSubstr("In "));

    QTest::keyClick(&month, Qt::Key_Return);
    EXPECT_EQ(Find<QTabWidget>(*form, "tabs").currentIndex(), 0);
    Grid& list = Find<Grid>(*form, "lvwComing");
    EXPECT_TRUE(list.hasFocus());
    EXPECT_THAT(FromScreen(list.SelectedText()), HasSubstr("12/01/2026"));
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_EQ(opened_.size(), 1U);
    EXPECT_NE(opened_[0].second, 0);
}

TEST_F(LookAheadScreen, GoesOnWorkingWhileItLooks) {
    support::Choose(*Open(), "cboDays", "Next 365 days");
    QPointer<frmLookAhead> form(new frmLookAhead);
    form->Setup();
    ASSERT_TRUE(Find<QProgressBar>(*form, "prgLook").isVisible());
    EXPECT_FALSE(Find<QPushButton>(*form, "cmdApply").isEnabled());
    // The books are the window's as ever.
    EXPECT_FALSE(core::App().Connection.InUnitOfWork());
    Run("UPDATE Building SET Address = 'Written in the meantime'");
    core::NotifyAll(core::kBuilding, core::kRecordsChanged, 0);
    EXPECT_TRUE(Find<QLabel>(*form, "lblChanged").isVisible());
    ClickAction(*form, "STOP");
    Settle(*form);
    EXPECT_EQ(Summary(*form), "The look ahead was stopped.");
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_FALSE(Find<QPushButton>(*form, "cmdCancel").isEnabled());

    ClickAction(*form, "START");
    support::Choose(*form, "cboDays", "Next 30 days"); // while it looks
    Settle(*form);
    EXPECT_THAT(Summary(*form), HasSubstr("Until 12/21/2026, "));
    EXPECT_FALSE(Find<QLabel>(*form, "lblChanged").isVisible());

    ClickAction(*form, "START");
    form->close(); // while it looks
    support::SettleEvents();
    EXPECT_TRUE(form.isNull());
    EXPECT_EQ(Ask("SELECT Max(Address) FROM Building"), "Written in the meantime");
}

TEST_F(LookAheadScreen, SaysWhatWentWrong) {
    Run("UPDATE Lease SET DateNextDue = 'soon', DateUpdated = '11/20/2026' WHERE IdLease = "
        "(SELECT Max(IdLease) FROM Lease)");
    const QPointer<frmLookAhead> form = Open();
    EXPECT_THAT(Summary(*form), HasSubstr("Not included: Lease "));
    EXPECT_GT(Rows(*form), 0);
    const int rows = Rows(*form);
    core::App().Connection.Close();
    ClickAction(*form, "START");
    Settle(*form);
    EXPECT_THAT(Heard(), testing::ElementsAre(HasSubstr("No database is open.")));
    EXPECT_EQ(Rows(*form), rows) << "what was shown stays";
}

TEST_F(LookAheadScreen, LooksRight) {
    const QPointer<frmLookAhead> form = Open();
    const bool isScaled = form->devicePixelRatioF() > 1;
    const std::string end = isScaled ? "-150" : "";
    support::Choose(*form, "cboDays", "Next 365 days");
    Settle(*form);
    const std::array pages = {"list", "calendar", "chart"};
    for (int page = 0; page < static_cast<int>(pages.size()); ++page) {
        ShowPage(*form, page);
        const char* const name = pages.at(static_cast<std::size_t>(page));
        EXPECT_THAT(
            support::LookFaults(*form, std::string("frmLookAhead-").append(name).append(end)),
            IsEmpty());
    }
    Run("DELETE * FROM Lease");
    Run("DELETE * FROM Mortgage");
    Run("DELETE * FROM AutoEvent");
    Run("UPDATE Building SET InsNextDue = '', HOANextDue = NULL");
    ClickAction(*form, "START");
    Settle(*form);
    EXPECT_EQ(Rows(*form), 0);
    EXPECT_EQ(Find<Grid>(*form, "lvwComing").EmptyText(),
              QStringLiteral("Nothing is coming in these days."));
    ShowPage(*form, 0);
    EXPECT_THAT(support::Portray(*form, "frmLookAhead-empty" + end), IsEmpty());
}

} // namespace
