#include "core/EditRecord.h"
#include "records/screens/frmBuilding.h"
#include "records/screens/frmManagerLink.h"
#include "records/screens/frmOwnerLink.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmBuilding;

/// Opens records of a kind on their screen, while it lives.
template <class Screen>
struct Opening {
    explicit Opening(core::RecordKind of) : kind(of) {
        core::RegisterOpener(kind, [this](const core::EditRequest& request) {
            form = new Screen;
            form->Setup(request.id, request.parent1);
        });
    }
    ~Opening() { core::RegisterOpener(kind, nullptr); }
    Opening(const Opening&) = delete;
    Opening& operator=(const Opening&) = delete;

    core::RecordKind kind;
    QPointer<Screen> form;
};

/// A person without a mouse.
class BuildingKeyboardTest : public ScreenTest {
  protected:
    BuildingKeyboardTest() {
        form_ = new frmBuilding;
        form_->Setup(0, 0);
        QApplication::setActiveWindow(form_);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QWidget* const menu = QApplication::activePopupWidget();
        QWidget* const focus = form_->focusWidget();
        QTest::keyClick(menu ? menu : focus ? focus : form_.data(), key, with);
    }
    /// Tabs on to the control of this name.
    void TabTo(const char* name) {
        for (int i = 0; i < 200; ++i) {
            const QWidget* const focus = form_->focusWidget();
            if (focus && focus->objectName() == QLatin1String(name)) return;
            Press(Qt::Key_Tab);
        }
        FAIL() << name << " can't be reached";
    }
    void AddUnit() {
        Press(Qt::Key_N, Qt::ControlModifier);
        SettleEvents();
    }

    QPointer<frmBuilding> form_;
};

TEST_F(BuildingKeyboardTest, EntersABuildingOfThreeUnits) {
    for (const char* const text : {"12 O'Hara Ct", "97301", "Salem", "Marion", "OR"})
        TypeAndTab(*form_, text);
    Press(Qt::Key_Tab, Qt::ControlModifier); // the next page
    TabTo("txtUnit");
    TypeAndTab(*form_, "1A");
    TypeAndTab(*form_, "Avaliable");
    TypeAndTab(*form_, "950.50");
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Ask("SELECT Address FROM Building WHERE IdBuilding = 1000"), "12 O'Hara Ct");

    Answer({true});
    AddUnit();
    EXPECT_EQ(Heard().size(), 1U) << "whether it is to become a building of several";
    for (const char* const unit : {"2B", "3C"}) {
        AddUnit();
        EXPECT_EQ(form_->focusWidget()->objectName(), QStringLiteral("txtUnit"));
        TypeAndTab(*form_, unit); // the name "<new>" is selected, so typing replaces it
        TypeAndTab(*form_, "Hold");
        TypeAndTab(*form_, "800");
    }
    Press(Qt::Key_Return);
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(form_ && form_->isVisible());
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 1000"), "True");
    std::string units;
    platform::Recordset row;
    row.Open(core::App().Connection,
             "SELECT Unit, Status, Rent FROM Unit WHERE IdBuilding = 1000 ORDER BY Unit");
    for (; !row.Eof(); row.MoveNext()) {
        units +=
            row["Unit"].AsText() + " " + row["Status"].AsText() + " " + row["Rent"].AsText() + "\n";
    }
    EXPECT_EQ(units, "1A Avaliable 950.5\n2B Hold 800\n3C Hold 800\n");
}

TEST_F(BuildingKeyboardTest, GivesItAnOwnerAndAManager) {
    Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) "
        "VALUES (64, 'Mo''s Management', 'Building Manager')");
    Opening<records::screens::frmOwnerLink> owners(core::kOwner);
    Opening<records::screens::frmManagerLink> managers(core::kManager);
    TypeAndTab(*form_, "5 Owner St");
    Press(Qt::Key_S, Qt::ControlModifier);
    TabTo("tabs"); // of the lists, the owners' being the first
    TabTo("cmdAdd");
    Press(Qt::Key_Space);
    ASSERT_TRUE(owners.form);
    QApplication::setActiveWindow(owners.form);
    for (const char* const text : {"5", "Jo", "100"})
        TypeAndTab(*owners.form, text);
    QTest::keyClick(owners.form->focusWidget(), Qt::Key_Space); // the primary one
    QTest::keyClick(owners.form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Ask("SELECT IdAccount FROM OwnerLink WHERE IdBuilding = 1000 AND IsPrimary = True "
                  "AND [Percent] = 100"),
              "62");

    QApplication::setActiveWindow(form_);
    Press(Qt::Key_Backtab);
    Press(Qt::Key_Right); // the managers' list
    Press(Qt::Key_Tab);
    Press(Qt::Key_Space);
    ASSERT_TRUE(managers.form);
    QApplication::setActiveWindow(managers.form);
    for (const char* const text : {"5", "Mo", "02/29/2024", "2", "Year"})
        TypeAndTab(*managers.form, text);
    QTest::keyClick(managers.form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Ask("SELECT DateStart & Term & TermType FROM ManagerLink WHERE IdBuilding = 1000 "
                  "AND IdAccount = 64"),
              "02/29/20242Year(s)");
    EXPECT_EQ(Heard(), Said{});
}

TEST_F(BuildingKeyboardTest, TheMenuOpensByItsLetter) {
    TypeAndTab(*form_, "5 Menu St");
    Press(Qt::Key_B, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget()) << "Alt+B";
    Press(Qt::Key_A);
    EXPECT_EQ(Ask("SELECT Address FROM Building WHERE IdBuilding = 1000"), "5 Menu St");
}

} // namespace
} // namespace support
