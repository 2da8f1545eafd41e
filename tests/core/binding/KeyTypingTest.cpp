#include <gtest/gtest.h>

#include <QClipboard>
#include <QFocusEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "core/binding/DateEdit.h"
#include "core/binding/MoneyEdit.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "platform/system/Clock.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::binding::DateEdit;
using core::binding::MoneyEdit;
using platform::Currency;
using platform::Date;

class Typing : public testing::Test {
  protected:
    QLineEdit& Box(std::string_view tag) {
        auto* const box = new QLineEdit(&form_);
        core::binding::SetTag(*box, tag);
        core::binding::WireControls(form_);
        return *box;
    }

    template <class Control>
    Control& Add() {
        auto* const control = new Control(&form_);
        core::binding::WireControls(form_);
        form_.show();
        form_.activateWindow();
        return *control;
    }

  private:
    QWidget form_;
};

TEST_F(Typing, ASumIsRefusedAndNeverRunTogether) {
    QLineEdit& money = Box("$Rent");
    support::Type(money, "12+3");
    EXPECT_EQ(money.text(), QStringLiteral("12"));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("no sums")));
    QTest::keyClick(&money, Qt::Key_Backspace);
    support::TypeOn(money, "3");
    EXPECT_EQ(money.text(), QStringLiteral("13")) << "once the user has seen it";
    QToolTip::hideText();
    support::Type(money, "-5");
    EXPECT_EQ(money.text(), QStringLiteral("5"));
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("no signs")))
        << "a dropped sign is reported";
    QLineEdit& words = Box("_Notes");
    support::Type(words, "12+3");
    EXPECT_EQ(words.text(), QStringLiteral("12+3"));
}

TEST_F(Typing, TheWheelChangesNothingThatHasNoFocus) {
    QComboBox& list = Add<QComboBox>();
    list.addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    const auto roll = [&list] {
        QWheelEvent event(QPointF(3, 3), list.mapToGlobal(QPointF(3, 3)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list, &event);
    };
    roll();
    EXPECT_EQ(list.currentIndex(), 0);
    list.setFocus();
    roll();
    EXPECT_EQ(list.currentIndex(), list.hasFocus() ? 1 : 0);
}

TEST_F(Typing, OnlyWhatTheTagAllowsArrives) {
    QLineEdit& money = Box("$Rent");
    support::Type(money, "1a2,3.4567");
    EXPECT_EQ(money.text(), QStringLiteral("123.45"));
    QLineEdit& capitals = Box("-State");
    support::Type(capitals, "o1r");
    EXPECT_EQ(capitals.text(), QStringLiteral("OR"));
    QLineEdit& locked = Box("^Id");
    support::Type(locked, "12");
    EXPECT_EQ(locked.text(), QString());
}

TEST_F(Typing, PastingPassesTheFilter) {
    QLineEdit& money = Box("$Rent");
    QApplication::clipboard()->setText(QStringLiteral("12 dollars"));
    money.paste();
    EXPECT_EQ(money.text(), QStringLiteral("12 dollars"));
}

TEST_F(Typing, NumbersStandAtTheRightEdge) {
    EXPECT_TRUE(Box("#Term").alignment() & Qt::AlignRight);
    EXPECT_TRUE(Box("_City").alignment() & Qt::AlignLeft);
}

TEST(DateTyping, ShortFormsAreSpelledOutWhenTheBoxIsLeft) {
    DateEdit box;
    support::Type(box, "3/7/24");
    EXPECT_EQ(box.Day(), Date(2024, 3, 7));
    QFocusEvent left(QEvent::FocusOut);
    QApplication::sendEvent(&box, &left);
    EXPECT_EQ(box.text(), QStringLiteral("03/07/2024"));
}

TEST(DateTyping, BlankIsNoDateAndJunkStaysToBeSeen) {
    DateEdit box;
    EXPECT_EQ(box.Day(), Date());
    for (const char* const junk : {"2/30/2024", "13/1/2024", "1/1", "soon"}) {
        box.setText(QString::fromLatin1(junk));
        EXPECT_EQ(box.Day(), std::nullopt) << junk;
        EXPECT_EQ(box.text(), QString::fromLatin1(junk));
        EXPECT_FALSE(box.toolTip().isEmpty());
    }
    box.SetDay(Date(2024, 2, 29));
    EXPECT_EQ(box.text(), QStringLiteral("02/29/2024"));
    EXPECT_TRUE(box.toolTip().isEmpty());
    box.SetDay(Date());
    EXPECT_EQ(box.text(), QString());
}

TEST(MoneyTyping, ShowsMoneyAsEverywhereAndReadsItBack) {
    MoneyEdit box;
    for (const std::int64_t scaled : {0, 1, -50'000, 12'345'000}) {
        box.SetAmount(Currency::FromScaled(scaled));
        if (scaled % 100 == 0) {
            EXPECT_EQ(box.Amount(), Currency::FromScaled(scaled));
        }
    }
    EXPECT_EQ(box.text(), QStringLiteral("1,234.50"));
    support::Type(box, "7.5");
    QFocusEvent left(QEvent::FocusOut);
    QApplication::sendEvent(&box, &left);
    EXPECT_EQ(box.text(), QStringLiteral("7.50"));
    box.setText(QStringLiteral("seven"));
    EXPECT_EQ(box.Amount(), std::nullopt);
    box.setText(QStringLiteral("99999999999999999999"));
    EXPECT_EQ(box.Amount(), std::nullopt);
    box.clear();
    EXPECT_EQ(box.Amount(), Currency());
}

} // namespace
} // namespace support
