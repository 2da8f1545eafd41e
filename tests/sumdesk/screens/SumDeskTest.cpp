#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QProcess>

#include "platform/system/Version.h"
#include "sumdesk/frmSumDesk.h"
#include "support/screens/DoubleClick.h"
#include "support/screens/Screens.h"

namespace {

using platform::qt::FromScreen;
using support::Find;
using testing::IsEmpty;

class SumDesk : public support::ScreenTest {
  protected:
    SumDesk() {
        window_->Setup();
        support::SettleEvents();
        QApplication::setActiveWindow(window_);
    }

    template <class T>
    T& In(const char* name) {
        return Find<T>(*window_, name);
    }
    QLineEdit& Line() { return In<QLineEdit>("txtSum"); }
    std::string LineText() { return FromScreen(Line().text()); }
    std::string Text(const char* label) { return FromScreen(In<QLabel>(label).text()); }
    std::string Tape() { return FromScreen(In<QPlainTextEdit>("txtTape").toPlainText()); }
    void TurnTo(int page) { In<QTabWidget>("tabPages").setCurrentIndex(page); }
    /// Types keys into the line; "\r" is Enter.
    void Keys(const char* keys) {
        for (const char* key = keys; *key != 0; ++key) {
            if (*key == '\r') {
                QTest::keyClick(&Line(), Qt::Key_Return);
            } else {
                QTest::keyClick(&Line(), *key);
            }
        }
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(&Line(), key, modifiers);
    }

    sumdesk::frmSumDesk* window_ = new sumdesk::frmSumDesk;
};

TEST_F(SumDesk, WorksByKeyboardLikeADeskCalculator) {
    Keys("12+3");
    EXPECT_EQ(Text("lblResult"), "= 15") << "ahead of Enter";
    Keys("\r");
    EXPECT_EQ(LineText(), "15");
    Keys("\r");
    EXPECT_EQ(Tape(), "12 + 3 = 15\n") << "a second Enter works out nothing new";
    Keys("*2=");
    EXPECT_EQ(LineText(), "30") << "a sign goes on from the result";
    Keys("7/2\r");
    EXPECT_EQ(LineText(), "3.5") << "a number replaces it";
    QTest::keyClick(&Line(), Qt::Key_Up);
    QTest::keyClick(&Line(), Qt::Key_Up);
    EXPECT_EQ(LineText(), "15\u00D72");
    QTest::keyClick(&Line(), Qt::Key_Down);
    QTest::keyClick(&Line(), Qt::Key_Down);
    EXPECT_EQ(LineText(), "");
    Keys("200+10%\r");
    QTest::keyClick(&Line(), Qt::Key_Escape);
    EXPECT_EQ(LineText(), "");
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(Tape(), "12 + 3 = 15\n15 \u00D7 2 = 30\n7 \u00F7 2 = 3.5\n200 + 10% = 220\n");
}

TEST_F(SumDesk, KeepsAFaultySumAndSaysWhatIsWrong) {
    Keys("5*(2-2\r");
    EXPECT_EQ(Text("lblFault"), "A closing bracket is missing.");
    EXPECT_EQ(Line().cursorPosition(), 6);
    Keys(")+1/0\r");
    EXPECT_EQ(Text("lblFault"), "A number can't be divided by zero.");
    EXPECT_EQ(LineText(), "5\u00D7(2-2)+1\u00F70");
    EXPECT_EQ(Line().cursorPosition(), 9) << "before the sign";
    QTest::keyClick(&Line(), Qt::Key_Backspace);
    EXPECT_EQ(Text("lblFault"), "");
    QTest::keyClick(&Line(), Qt::Key_Escape);
    Keys("\r");
    EXPECT_EQ(Text("lblFault"), "Enter a sum first, for example 12 + 3.");
    EXPECT_EQ(Tape(), "");
}

TEST_F(SumDesk, KeepsANumberInItsMemory) {
    EXPECT_FALSE(In<QPushButton>("cmdMemoryRecall").isEnabled());
    Keys("950+45");
    Press(Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(Text("lblMemory"), "M = 995");
    Keys("100");
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(Text("lblMemory"), "M = 1,095");
    Keys("95");
    Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    Keys("2*");
    Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(LineText(), "2\u00D71,000");
    Press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Text("lblMemory"), "");
    Keys("\r");
    EXPECT_EQ(LineText(), "2,000");
}

TEST_F(SumDesk, TakesTheMouseAndRoundsToCents) {
    for (auto* const key : window_->findChildren<QPushButton*>()) {
        if (key->text() == QLatin1String("1") || key->text() == QStringLiteral("\u00F7"))
            support::ClickOn(*key);
    }
    EXPECT_EQ(LineText(), "\u00F71") << "in the order of the keypad";
    Line().clear();
    In<QCheckBox>("chkCents").click();
    Keys("10/3");
    support::ClickOn(In<QPushButton>("cmdEquals"));
    EXPECT_EQ(LineText(), "3.33");
}

TEST_F(SumDesk, TakesEveryPressOfItsKeypad) {
    for (auto* const key : window_->findChildren<QPushButton*>()) {
        if (key->text() == QLatin1String("5")) support::DoubleClickOn(*key);
    }
    EXPECT_EQ(LineText(), "55");
}

TEST_F(SumDesk, CopiesItsTape) {
    EXPECT_FALSE(In<QPushButton>("cmdCopyTape").isEnabled());
    Keys("1+1\r");
    support::ClickOn(In<QPushButton>("cmdCopyTape"));
    EXPECT_EQ(FromScreen(QGuiApplication::clipboard()->text()), "1 + 1 = 2\n");
    support::ClickOn(In<QPushButton>("cmdClearTape"));
    EXPECT_EQ(Tape(), "");
    EXPECT_FALSE(In<QPushButton>("cmdClearTape").isEnabled());
}

TEST_F(SumDesk, WorksOutLoansByKeyboard) {
    TurnTo(1);
    In<QLineEdit>("txtAmount").setFocus();
    support::TypeAndTab(*window_, "250000-20%");
    support::TypeAndTab(*window_, "6");
    support::TypeAndTab(*window_, "30*12");
    EXPECT_EQ(window_->focusWidget(), &In<QLineEdit>("txtPaid")) << "what is found is passed by";
    support::TypeOn(*window_->focusWidget(), "60");
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(FromScreen(In<QLineEdit>("txtPayment").text()), "1,199.10");
    EXPECT_THAT(Text("lblAnswer"), testing::HasSubstr("Balance after 60 payments 186,108.71"));
    EXPECT_EQ(Tape(), Text("lblAnswer") + "\n\n");

    support::Choose(*window_, "cboFind", "Rate");
    EXPECT_EQ(Text("lblAnswer"), "") << "not an answer to this question";
    EXPECT_FALSE(In<QLineEdit>("txtRate").isEnabled());
    support::Type(In<QLineEdit>("txtPayment"), "100");
    QTest::keyClick(&In<QLineEdit>("txtPayment"), Qt::Key_Return);
    EXPECT_THAT(Text("lblAnswer"), testing::HasSubstr("less than the loan"));
    EXPECT_EQ(window_->focusWidget(), &In<QLineEdit>("txtPayment"));
    QTest::keyClick(window_, Qt::Key_Escape);
    EXPECT_EQ(FromScreen(In<QLineEdit>("txtAmount").text()), "");
}

TEST_F(SumDesk, CountsDaysByKeyboard) {
    TurnTo(2);
    In<QLineEdit>("dpFrom").setFocus();
    support::TypeAndTab(*window_, "3/1/24");
    support::TypeOn(*window_->focusWidget(), "3/31/24");
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Text("lblSpan"), "03/01/2024 to 03/31/2024: 30 days\n4 weeks and 2 days");
    In<QCheckBox>("chkBoth").click();
    EXPECT_EQ(Text("lblSpan"), "") << "no longer the answer";
    support::Type(In<QLineEdit>("dpTo"), "2/30/24");
    support::ClickOn(In<QPushButton>("cmdSpan"));
    EXPECT_EQ(Text("lblSpan"), "\"2/30/24\" is not a valid date. Enter it as month/day/year.");
    support::Type(In<QLineEdit>("dpStart"), "2/28/24");
    support::Type(In<QLineEdit>("txtDays"), "1");
    QTest::keyClick(&In<QLineEdit>("txtDays"), Qt::Key_Return);
    EXPECT_EQ(Text("lblAfter"), "1 day after 02/28/2024: Thursday, 02/29/2024");
}

TEST_F(SumDesk, LooksRightAndNamesItsControls) {
    Keys("1,250*12-5%");
    Press(Qt::Key_M, Qt::ControlModifier);
    Keys("(950+45)/2");
    TurnTo(1);
    support::Type(In<QLineEdit>("txtAmount"), "200000");
    support::Type(In<QLineEdit>("txtRate"), "6.125");
    support::Type(In<QLineEdit>("txtTerm"), "360");
    support::Type(In<QLineEdit>("txtPaid"), "60");
    support::ClickOn(In<QPushButton>("cmdLoan"));
    TurnTo(2);
    support::Type(In<QLineEdit>("dpFrom"), "1/15/2024");
    support::Type(In<QLineEdit>("dpTo"), "3/31/2026");
    support::ClickOn(In<QPushButton>("cmdSpan"));
    const char* const names[] = {"sumdesk-sums", "sumdesk-loan", "sumdesk-days"};
    for (int page = 0; page < 3; ++page) {
        TurnTo(page);
        support::SettleEvents();
        EXPECT_THAT(support::LookFaults(*window_, names[page]), IsEmpty());
    }
}

TEST(SumDeskProgram, TellsItsVersionAndHelpWithoutAScreen) {
    for (const char* const option : {"--version", "--help"}) {
        QProcess program;
        program.start(
            QStringLiteral(VESTREL_SUMDESK),
            {QLatin1String(option), QStringLiteral("-platform"), QStringLiteral("none-such")});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), 0);
        const std::string said = program.readAllStandardOutput().toStdString();
        EXPECT_THAT(said, testing::HasSubstr("SumDesk"));
    }
}

} // namespace
