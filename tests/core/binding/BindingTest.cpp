#include "core/binding/Binding.h"

#include "core/binding/DateEdit.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/Text.h"
#include "support/Cases.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::binding::BindFromRecord;
using core::binding::BindToRecord;
using core::binding::CheckFields;
using core::binding::DateEdit;
using platform::qt::FromScreen;

constexpr const char* kCases = VESTREL_TEST_DATA "/binding.cases";

/// A form without a layout, and a table with a field of each sort.
class BindingTest : public ScreenTest {
  protected:
    BindingTest() {
        const auto type = [](platform::FieldType field) {
            return std::string(platform::dialect::DeclarationOf(field));
        };
        using enum platform::FieldType;
        core::App().Connection.RunScript(
            "CREATE TABLE Sample (Words " + type(Text) + ", Pages " + type(Memo) + ", Small " +
            type(Integer) + ", Big " + type(Long) + ", Part " + type(Double) + ", Sum " +
            type(Currency) + ", Flag " + type(Boolean) + ", Day " + type(Text) + ")");
        Run("INSERT INTO Sample (Words) VALUES (NULL)");
    }

    template <class T>
    T& Add(std::string_view tag) {
        auto* const control = new T(&form_);
        core::binding::SetTag(*control, tag);
        return *control;
    }
    QComboBox& AddCombo(std::string_view tag) {
        auto& combo = Add<QComboBox>(tag);
        combo.addItem(QStringLiteral("None"), 0);
        combo.addItem(QStringLiteral("Elm"), 10);
        combo.addItem(QStringLiteral("Oak"), 11);
        return combo;
    }
    void Store(const std::string& field, const std::string& literal) {
        Run("UPDATE Sample SET " + field + " = " + literal);
    }
    void Show(std::string_view table = {}, CheckFields check = CheckFields::No) {
        platform::Recordset row;
        row.Open(core::App().Connection, "SELECT * FROM Sample");
        BindFromRecord(form_, row, table, check);
    }
    void Keep(std::string_view table = {}, CheckFields check = CheckFields::No) {
        platform::Recordset row;
        row.Open(core::App().Connection, "SELECT * FROM Sample", platform::CursorMode::Updatable);
        BindToRecord(form_, row, table, check);
        row.Update();
    }

    QWidget form_;
};

TEST_F(BindingTest, ShowsEachSortInItsForm) {
    ForEachCase(kCases, "shown", [this](const Case& each) {
        Store(each["field"], each["stored"]);
        auto& box = Add<QLineEdit>(each["tag"]);
        auto& label = Add<QLabel>(each["tag"]);
        Show();
        EXPECT_EQ(FromScreen(box.text()), each["text"]);
        EXPECT_EQ(FromScreen(label.text()), each["text"]);
        delete &box;
        delete &label;
    });
}

TEST_F(BindingTest, ANullLeavesEveryControlAlone) {
    auto& money = Add<QLineEdit>("$Sum");
    money.setText(QStringLiteral("designed"));
    auto& flag = Add<QCheckBox>("*Flag");
    flag.setChecked(true);
    auto& list = AddCombo("!Big");
    list.setCurrentIndex(2);
    auto& date = Add<DateEdit>("@Day");
    date.SetDay({2024, 1, 1});
    for (const char* const field : {"Sum", "Flag", "Big", "Day"})
        Store(field, "NULL");
    Show();
    EXPECT_EQ(money.text(), QStringLiteral("designed"));
    EXPECT_TRUE(flag.isChecked());
    EXPECT_EQ(list.currentIndex(), 2);
    EXPECT_EQ(date.Day(), platform::Date(2024, 1, 1));
}

TEST_F(BindingTest, KeepsWhatIsTyped) {
    ForEachCase(kCases, "kept", [this](const Case& each) {
        auto& box = Add<QLineEdit>(each["tag"]);
        box.setText(QString::fromStdString(each["typed"]));
        Keep();
        EXPECT_EQ(Ask("SELECT " + each["field"] + " FROM Sample"), each["stored"]);
        delete &box;
    });
}

TEST_F(BindingTest, RefusesWhatTheFieldCannotHold) {
    for (const auto& [tag, typed] : {std::pair{"$Sum", "12 dollars"},
                                     {"#Small", "40000"},
                                     {"%Part", "half"},
                                     {"@Day", "2/30/2024"},
                                     {"#Part", "1e999"}}) {
        auto& box = Add<QLineEdit>(tag);
        box.setText(QString::fromLatin1(typed));
        EXPECT_THROW(Keep(), platform::Error) << tag << " " << typed;
        delete &box;
    }
    auto& date = Add<DateEdit>("@Day");
    date.setText(QStringLiteral("2/30/2024"));
    EXPECT_THROW(Keep(), platform::Error);
}

TEST_F(BindingTest, ListsGoByIdentifierOrByText) {
    auto& byId = AddCombo("!Big");
    auto& byText = AddCombo("?Words");
    Store("Big", "11");
    Store("Words", "'elm'");
    Show();
    EXPECT_EQ(byId.currentText(), QStringLiteral("Oak"));
    EXPECT_EQ(byText.currentText(), QStringLiteral("Elm"));

    Store("Big", "99");
    Store("Words", "'Birch'");
    Show();
    EXPECT_EQ(byId.currentIndex(), 0) << "no match selects the first row";
    EXPECT_EQ(byText.currentText(), QStringLiteral("Elm")) << "no match, no change";

    byId.setCurrentIndex(1);
    byText.setCurrentIndex(2);
    Keep();
    EXPECT_EQ(Ask("SELECT Big FROM Sample"), "10");
    EXPECT_EQ(Ask("SELECT Words FROM Sample"), "Oak");
    byId.setCurrentIndex(-1);
    Keep();
    EXPECT_EQ(Ask("SELECT Big FROM Sample"), "0");
}

TEST_F(BindingTest, ATypedTextThatIsNoRowHasNoIdentifier) {
    auto& list = AddCombo("!Big");
    list.setEditable(true);
    list.setCurrentIndex(2);
    list.setEditText(QStringLiteral("Oakley"));
    Keep();
    EXPECT_EQ(Ask("SELECT Big FROM Sample"), "0");
}

TEST_F(BindingTest, FlagsAndOptionsGoBothWays) {
    auto& flag = Add<QCheckBox>("*Flag");
    auto& first = Add<QRadioButton>(":Small");
    auto& second = Add<QRadioButton>(":Small");
    first.setProperty("index", 1);
    second.setProperty("index", 2);
    Store("Flag", "True");
    Store("Small", "2");
    Show();
    EXPECT_TRUE(flag.isChecked());
    EXPECT_FALSE(first.isChecked());
    EXPECT_TRUE(second.isChecked());

    Store("Small", "7");
    Show();
    EXPECT_TRUE(second.isChecked()) << "no member of that index: none is touched";

    flag.setChecked(false);
    first.setChecked(true);
    Keep();
    EXPECT_EQ(Ask("SELECT Flag FROM Sample"), "False");
    EXPECT_EQ(Ask("SELECT Small FROM Sample"), "1");
}

TEST_F(BindingTest, TablesAreChosenByName) {
    auto& own = Add<QLineEdit>("_Sample.Words");
    auto& other = Add<QLineEdit>("_Building.City");
    auto& plain = Add<QLineEdit>("_Words");
    Store("Words", "'here'");
    Show("SAMPLE");
    EXPECT_EQ(own.text(), QStringLiteral("here"));
    EXPECT_EQ(other.text(), QString());
    EXPECT_EQ(plain.text(), QString()) << "a tag without a table is of no table";
}

TEST_F(BindingTest, AMissingFieldIsAnErrorUnlessItIsChecked) {
    auto& missing = Add<QLineEdit>("_Nowhere");
    auto& words = Add<QLineEdit>("_WORDS");
    Store("Words", "'here'");
    EXPECT_THROW(Show(), platform::FieldError);
    Show({}, CheckFields::Yes);
    EXPECT_EQ(words.text(), QStringLiteral("here"));
    EXPECT_EQ(missing.text(), QString());
    EXPECT_NO_THROW(Keep({}, CheckFields::Yes));
}

TEST_F(BindingTest, WhatIsNoBindingIsPassedOver) {
    auto& box = Add<QLineEdit>("_");
    auto& locked = Add<QLineEdit>("^Words");
    auto& word = Add<QLineEdit>("APPLY");
    auto& label = Add<QLabel>("$Sum");
    auto& panel = Add<QWidget>("");
    panel.setProperty("panel", true);
    QLineEdit inside(&panel);
    core::binding::SetTag(inside, "_Words");
    Store("Words", "'here'");
    Store("Sum", "1.2345");
    Show();
    EXPECT_EQ(box.text() + locked.text() + word.text() + inside.text(), QString());
    EXPECT_EQ(label.text(), QStringLiteral("1.23"));
    Keep();
    EXPECT_EQ(Ask("SELECT Sum FROM Sample"), "1.2345") << "a label only shows";
    EXPECT_EQ(Ask("SELECT Words FROM Sample"), "here");
}

TEST_F(BindingTest, ReadOnlyBoxesHaveTheColourOfThePage) {
    using platform::qt::Appearance;
    auto& line = Add<QLineEdit>("#Big");
    line.setReadOnly(true);
    auto& page = Add<QPlainTextEdit>("*Pages");
    page.setReadOnly(true);
    core::binding::WireControls(form_);
    form_.show();
    for (const Appearance appearance : {Appearance::Dark, Appearance::Light}) {
        platform::qt::ApplyAppearance(appearance);
        SettleEvents();
        const QColor window = QApplication::palette().color(QPalette::Window);
        EXPECT_EQ(line.palette().color(QPalette::Base), window);
        EXPECT_EQ(page.palette().color(QPalette::Base), window);
    }
    line.setReadOnly(false);
    EXPECT_EQ(line.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST_F(BindingTest, MemosKeepTheirLines) {
    auto& page = Add<QPlainTextEdit>("_Pages");
    page.setPlainText(QStringLiteral("one\ntwo"));
    Keep();
    page.clear();
    Show();
    EXPECT_EQ(page.toPlainText(), QStringLiteral("one\ntwo"));
}

} // namespace
} // namespace support
