#include "core/Configuration.h"
#include "core/Preferences.h"
#include "core/binding/ComboList.h"
#include "records/screens/frmOwnerLink.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmOwnerLink;

const std::string kNotice60 =
    "Notice: Note: the total ownership for this building is currently 60%";
const std::string kMadePrimary =
    "Note:: There are no other owners for this building specified as primary, so this\n"
    "one will automatically be set as primary. If you add another owner and set\n"
    "it as primary this will be overridden.";

class OwnerLinkTest : public ScreenTest {
  protected:
    QPointer<frmOwnerLink> Open(std::int32_t id = 0, std::int32_t building = 10) {
        return Show<frmOwnerLink>(id, building);
    }
    static void Enter(frmOwnerLink& form, std::string_view owner, std::string_view percent) {
        Choose(form, "cboOwner", owner);
        Type(Find<QLineEdit>(form, "txtPctOwned"), percent);
    }
    static void AddLink(int id, int account, double percent, bool primary) {
        Run("INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount, Percent, IsPrimary) VALUES "
            "(" +
            std::to_string(id) + ", 10, " + std::to_string(account) + ", " +
            std::to_string(percent) + (primary ? ", True)" : ", False)"));
    }
    static std::string Primaries() {
        return Ask("SELECT Count(*) FROM OwnerLink WHERE IsPrimary = True");
    }
    static bool CanApply(const frmOwnerLink& form) {
        return Find<QPushButton>(form, "cmdApply").isEnabled();
    }
};

TEST_F(OwnerLinkTest, OpensOnTheParentsBuildingWithNothingToApply) {
    const auto form = Open(0, 11);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Owner"));
    EXPECT_EQ(Text(*form, "cboBuilding"), "Oak Rd");
    EXPECT_EQ(Find<QComboBox>(*form, "cboOwner").count(), 2) << "only owners are offered";
    EXPECT_FALSE(form->Dirty());
    EXPECT_FALSE(CanApply(*form));
    EXPECT_EQ(form->OpenRecordId(), 0);
}

TEST_F(OwnerLinkTest, ApplySavesAndStaysOnTheRecord) {
    const auto form = Open();
    Enter(*form, "Jo Owner", "100");
    EXPECT_TRUE(form->Dirty());
    EXPECT_TRUE(CanApply(*form));
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{kMadePrimary});
    EXPECT_EQ(Ask("SELECT IdBuilding FROM OwnerLink WHERE IdAccount = 62 AND Percent = 100"), "10");
    EXPECT_EQ(Ask("SELECT IdOwnerLink FROM OwnerLink"), "1000");
    EXPECT_EQ(form->Id(), 1000);
    EXPECT_EQ(form->OpenRecordId(), 1000);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Owner: Jo Owner"));
    EXPECT_TRUE(Find<QCheckBox>(*form, "chkIsPrimary").isChecked()) << "the row is shown again";
    EXPECT_FALSE(form->Dirty());
    EXPECT_FALSE(CanApply(*form));
}

TEST_F(OwnerLinkTest, AllThatIsWrongIsToldAtOnce) {
    Run("DELETE * FROM Building");
    Run("DELETE * FROM Account");
    const auto form = Open();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "A building must be selected.\n"
                                    "An owner must be selected.\n"
                                    "Percentage owned must be between 1 and 100 percent.\n"});
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), "0");
}

TEST_F(OwnerLinkTest, ThePercentageIsFromOneToAHundred) {
    for (const auto& [percent, taken] : {std::pair{"0", false},
                                         {"0.9", false},
                                         {"1", true},
                                         {"100", true},
                                         {"100.5", false},
                                         {"", false},
                                         {"1e999", false},
                                         {"x", false}}) {
        Run("DELETE * FROM OwnerLink");
        const auto form = Open();
        Choose(*form, "cboOwner", "Jo Owner");
        Find<QLineEdit>(*form, "txtPctOwned").setText(QString::fromLatin1(percent));
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), taken ? "1" : "0") << percent;
        const Said heard = Heard();
        ASSERT_FALSE(heard.empty());
        EXPECT_EQ(heard.front() == kRoll + "Percentage owned must be between 1 and 100 percent.\n",
                  !taken)
            << percent;
        if (form) form->CloseUnasked();
        SettleEvents();
    }
}

TEST_F(OwnerLinkTest, TheSamePairIsRefusedButItselfIsNot) {
    AddLink(500, 62, 60, true);
    auto form = Open();
    Enter(*form, "Jo Owner", "40");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(),
              Said{kRoll + "A duplicate record for this building and owner already exist.\n"});
    form->CloseUnasked();
    form = Open(500);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kNotice60});
}

TEST_F(OwnerLinkTest, TheTotalIsToldWhenItIsNotAHundred) {
    AddLink(500, 61, 60, true);
    const auto form = Open();
    Enter(*form, "Jo Owner", "60");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(),
              Said{"Notice: Note: the total ownership for this building is currently 120%"});
    SettleEvents();
    EXPECT_FALSE(form);
}

TEST_F(OwnerLinkTest, ANewPrimaryUnmarksTheOthers) {
    AddLink(500, 61, 60, true);
    Run("INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount, Percent, IsPrimary) "
        "VALUES (501, 11, 61, 100, True)");
    const auto form = Open();
    Enter(*form, "Jo Owner", "40");
    Find<QCheckBox>(*form, "chkIsPrimary").click();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT IsPrimary FROM OwnerLink WHERE IdOwnerLink = 500"), "False");
    EXPECT_EQ(Ask("SELECT IsPrimary FROM OwnerLink WHERE IdAccount = 62"), "True");
    EXPECT_EQ(Primaries(), "2") << "another building's owner stays primary";
}

TEST_F(OwnerLinkTest, UnmarkingTheOnlyPrimaryMarksItAgain) {
    AddLink(500, 61, 60, true);
    AddLink(501, 62, 40, false);
    const auto form = Open(500);
    Find<QCheckBox>(*form, "chkIsPrimary").click();
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{kMadePrimary});
    EXPECT_EQ(Primaries(), "1");
    EXPECT_TRUE(Find<QCheckBox>(*form, "chkIsPrimary").isChecked());
}

TEST_F(OwnerLinkTest, LoadsItsRow) {
    AddLink(500, 62, 33.5, true);
    const auto form = Open(500, 11);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Owner: Jo Owner"));
    EXPECT_EQ(Text(*form, "cboBuilding"), "12 Elm St");
    EXPECT_EQ(Text(*form, "txtPctOwned"), "33.5");
    EXPECT_FALSE(form->Dirty());
}

TEST_F(OwnerLinkTest, ARowThatHasGoneComesBackUnderItsNumber) {
    AddLink(500, 62, 100, true);
    const auto form = Open(500);
    Run("DELETE * FROM OwnerLink");
    Answer({true}); // to whether it is to be saved again
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdOwnerLink FROM OwnerLink WHERE IdAccount = 62"), "500");
}

TEST_F(OwnerLinkTest, AnUnknownIdTurnsIntoANewRecord) {
    const auto form = Open(999);
    EXPECT_EQ(form->Id(), 0);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Owner"));
    EXPECT_EQ(Heard(), Said{});
}

TEST_F(OwnerLinkTest, CancelAsksOnlyWhenSomethingIsLostAndTheCautiousWantIt) {
    const std::string question = "Whoa!: Close without saving changes?";
    auto form = Open();
    ClickAction(*form, "CANCEL");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(form->isVisible());

    Answer({false, true});
    form = Open();
    Enter(*form, "Jo Owner", "5");
    ClickAction(*form, "CANCEL");
    EXPECT_EQ(Heard(), Said{question});
    EXPECT_TRUE(form->isVisible()) << "No keeps it open";
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_EQ(Heard(), Said{question});
    EXPECT_FALSE(form->isVisible());

    core::Preferences().ConfirmCancel = false;
    form = Open();
    Enter(*form, "Jo Owner", "5");
    form->close();
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), "0");
}

TEST_F(OwnerLinkTest, EnterSavesAndCloses) {
    const auto form = Open();
    Enter(*form, "Jo Owner", "100");
    QTest::keyClick(&Find<QLineEdit>(*form, "txtPctOwned"), Qt::Key_Return);
    EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), "1");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(OwnerLinkTest, TellsOthersOnceTheOwnershipIsSettled) {
    Said order;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t action, std::int32_t id) {
        order.push_back(std::to_string(core::KindNumber(kind)) + " " + std::to_string(action) +
                        " " + std::to_string(id) + ", primaries " + Primaries());
    });
    const auto form = Open();
    Enter(*form, "Jo Owner", "100");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(order, Said{"15 1 0, primaries 1"});
}

TEST_F(OwnerLinkTest, IsSavedWithTheMarksOfTheOthersOrNotAtAll) {
    AddLink(500, 61, 60, true);
    // Fails on the second row that the save writes.
    core::App().Connection.RunScript(
        "CREATE TRIGGER full BEFORE UPDATE OF IsPrimary ON OwnerLink WHEN OLD.IdOwnerLink = 500 "
        "BEGIN SELECT RAISE(ABORT, 'disk full'); END;");
    const auto form = Open();
    Enter(*form, "Jo Owner", "40");
    Find<QCheckBox>(*form, "chkIsPrimary").click();
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), "1");
    EXPECT_TRUE(form->Dirty());
    core::App().Connection.RunScript("DROP TRIGGER full;");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), "2");
    EXPECT_EQ(Primaries(), "1");
}

TEST_F(OwnerLinkTest, APrimaryThatMovesLeavesAnotherBehind) {
    AddLink(500, 61, 60, true);
    AddLink(501, 62, 40, false);
    const auto form = Open(500);
    Choose(*form, "cboBuilding", "Oak Rd");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT IsPrimary FROM OwnerLink WHERE IdOwnerLink = 501"), "True");
    EXPECT_EQ(Ask("SELECT IdBuilding FROM OwnerLink WHERE IdOwnerLink = 500"), "11");
    EXPECT_EQ(Primaries(), "2");
}

TEST_F(OwnerLinkTest, HearsOfNewBuildingsAndOwnersAndStaysClean) {
    const auto form = Open(0, 11);
    Choose(*form, "cboOwner", "Jo Owner");
    ClickAction(*form, "HELP");
    Run("INSERT INTO Building (IdBuilding, Address) VALUES (12, 'Ash Ct')");
    Run("UPDATE Account SET ShowAs = 'Zoe Owner' WHERE IdAccount = 62");
    const bool before = form->Dirty();
    core::NotifyAll(core::kBuilding, core::kRecordsChanged, 0);
    EXPECT_EQ(Find<QComboBox>(*form, "cboBuilding").count(), 3);
    EXPECT_EQ(Text(*form, "cboBuilding"), "Oak Rd");
    EXPECT_EQ(Text(*form, "cboOwner"), "Jo Owner");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboOwner"), "Zoe Owner");
    EXPECT_EQ(form->Dirty(), before);
}

TEST_F(OwnerLinkTest, AFailureOfTheDatabaseIsShownAndTheScreenStaysDirty) {
    const auto form = Open();
    Enter(*form, "Jo Owner", "100");
    core::App().Connection.Close();
    ClickAction(*form, "CLOSE");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard.front().substr(0, 9), "Vestrel: ");
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_TRUE(form->Dirty());
    core::App().Connection.Open(core::App().DbFile);
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Count(*) FROM OwnerLink"), "1") << "and can be tried again";
}

} // namespace
} // namespace support
