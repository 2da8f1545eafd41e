#include "books/Categories.h"

#include <gtest/gtest.h>

#include "books/BooksFixture.h"
#include "books/PartyChoice.h"

namespace {

using books::Category;
using books::Ien;

TEST(CategoryText, CarriesItsClassBehindABar) {
    for (const auto& [text, category] :
         {std::pair{"Deposit Refund|2", Category{"Deposit Refund", Ien::Unclassified}},
          {"Repairs|1", Category{"Repairs", Ien::Expense}},
          {"Deposit Charge|0", Category{"Deposit Charge", Ien::Income}},
          {"Repairs", Category{"Repairs", Ien::Income}},
          {"Repairs|x", Category{"Repairs", Ien::Income}},
          {"|1", Category{"", Ien::Expense}},
          {"", Category{"", Ien::Income}}}) {
        EXPECT_EQ(books::ParseCategory(text), category) << text;
    }
}

TEST(PartyIdOf, TakesATypedNameOnlyForTheFirst) {
    core::ChoiceList box;
    EXPECT_EQ(books::PartyIdOf(box), 0);
    box.SetText("Anybody");
    EXPECT_EQ(books::PartyIdOf(box), 0);
    box.Add("Al Owner", 61);
    box.Add("River Bank", 60);
    for (const auto& [typed, id] :
         {std::pair{"al owner", 61}, {"AL OWNER", 61}, {"river bank", 0}, {"Al", 0}, {"", 0}}) {
        box.SetText(typed);
        EXPECT_EQ(books::PartyIdOf(box), id) << typed;
    }
    box.Select(1);
    EXPECT_EQ(books::PartyIdOf(box), 60);
    box.SetText("River Bank");
    EXPECT_EQ(books::PartyIdOf(box), 60) << "still the selected one";
    box.SetText("River Bank of Salem");
    EXPECT_EQ(books::PartyIdOf(box), 0);
}

class Categories : public tests::BooksTest {};

TEST_F(Categories, AreAddedAndRemovedByTheirTextWhateverIsInIt) {
    Run("DELETE * FROM TransCategory");
    books::AddCategory({"Owner's Draw", Ien::Expense});
    books::AddCategory({"Owner's Draw", Ien::Expense});
    books::AddCategory({"Parking", Ien::Income});
    EXPECT_EQ(books::CategoriesOf(Ien::Expense),
              (std::vector<std::string>{"Owner's Draw", "Owner's Draw"}));
    books::PostTransaction(Payment());
    Run("UPDATE Transactions SET TaxCategory = 'Owner''s Draw'");
    books::RemoveCategory("Owner's Draw");
    EXPECT_EQ(books::CategoriesOf(Ien::Expense), std::vector<std::string>{});
    EXPECT_EQ(books::CategoriesOf(Ien::Income), std::vector<std::string>{"Parking"});
    EXPECT_EQ(Ask("SELECT TaxCategory FROM Transactions"), "Owner's Draw");
}

} // namespace
