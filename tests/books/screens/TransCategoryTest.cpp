#include "books/screens/frmTransCategory.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmTransCategory;

class TransCategoryTest : public ScreenTest {
  protected:
    QPointer<frmTransCategory> Open() { return Show<frmTransCategory>(); }
    static std::string Items(const frmTransCategory& form, const char* name) {
        const auto& list = Find<QListWidget>(form, name);
        std::string text;
        for (int row = 0; row < list.count(); ++row)
            text += list.item(row)->text().toStdString() + ";";
        return text;
    }
    static void Click(const frmTransCategory& form, const char* button) {
        ClickOn(Find<QPushButton>(form, button));
    }
    static void Select(const frmTransCategory& form, const char* name, int row) {
        auto& list = Find<QListWidget>(form, name);
        const QRect place = list.visualItemRect(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    }
};

TEST_F(TransCategoryTest, ShowsEachClassInItsList) {
    const auto form = Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral(" Transaction Categories"));
    EXPECT_EQ(Items(*form, "lstIncome"),
              "Rent Payment;Deposit Charge;Other Income;Vending;Laundry;");
    EXPECT_EQ(Find<QListWidget>(*form, "lstExpense").count(), 18);
    EXPECT_EQ(Items(*form, "lstUnclassified"), "Deposit;Deposit Refund;Mortgage Escrow;");
}

TEST_F(TransCategoryTest, AddsWhatIsTypedToTheListOfTheButton) {
    int told = 0;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t) {
        told += kind == core::kTransCategory ? 1 : 0;
    });
    const auto form = Open();
    auto& box = Find<QLineEdit>(*form, "txtNew");
    for (const auto& [text, button] : {std::pair{"  Owner's Draw ", "cmdAddExpense"},
                                       {"Parking", "cmdAddIncome"},
                                       {"Parking", "cmdAddUnclassified"}}) {
        Type(box, text);
        Click(*form, button);
        EXPECT_EQ(box.text(), QString());
    }
    EXPECT_EQ(told, 3);
    EXPECT_NE(Items(*form, "lstExpense").find(";Owner's Draw;"), std::string::npos);
    EXPECT_NE(Items(*form, "lstIncome").find(";Parking;"), std::string::npos);
    EXPECT_EQ(Ask("SELECT Count(*) FROM TransCategory WHERE Category = 'Parking'"), "2");
    box.setText(QStringLiteral("   "));
    Click(*form, "cmdAddIncome");
    EXPECT_EQ(Heard(), Said{"Whoa: You must enter description of item to add"});
    EXPECT_EQ(told, 3);
}

TEST_F(TransCategoryTest, RemovesWhatWasClickedLast) {
    const auto form = Open();
    Click(*form, "cmdRemove");
    EXPECT_EQ(Heard(), Said{"Error: No item selected for removal"});
    Select(*form, "lstIncome", 3);
    Select(*form, "lstUnclassified", 0);
    Select(*form, "lstIncome", 4);
    Answer({false, true});
    Click(*form, "cmdRemove");
    Click(*form, "cmdRemove");
    const std::string question = "Whoa: Are you sure you want to remove item 'Laundry'";
    EXPECT_EQ(Heard(), (Said{question, question}));
    EXPECT_EQ(Items(*form, "lstIncome"), "Rent Payment;Deposit Charge;Other Income;Vending;");
    EXPECT_EQ(Items(*form, "lstUnclassified"), "Deposit;Deposit Refund;Mortgage Escrow;");
    Click(*form, "cmdRemove");
    EXPECT_EQ(Heard(), Said{"Error: No item selected for removal"});
}

TEST_F(TransCategoryTest, EnterKeepsTheTypedNameAndTheScreen) {
    const auto form = Open();
    auto& box = Find<QLineEdit>(*form, "txtNew");
    Type(box, "Parking");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(box.text(), QStringLiteral("Parking"));
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

} // namespace
} // namespace support
