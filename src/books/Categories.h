#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "books/PostTransaction.h"

namespace books {

/// Shown in the category box while nothing is chosen; also stored in rows without a category.
inline constexpr std::string_view kNoCategory = "No Category Selected";

struct Category {
    std::string text;
    Ien ien = Ien::Income;

    friend bool operator==(const Category&, const Category&) = default;
};

/// The categories of the payments that the program posts itself; an event can wait for them.
inline constexpr std::array<std::string_view, 5> kPaymentCategories = {
    "Rent Payment", "Partial Rent Payment", "Rent Subsidy Payment", "Deposit Payment",
    "Mortgage Payment"};

/// Parses the form in which screens pass a category: the text, "|", its class ("Deposit Refund|2").
/// Without a class, or with an unknown one, it is income.
Category ParseCategory(std::string_view text);

// Reading and changing the list of categories. All of these throw on failure.

/// Returns the categories of a class, in the order of the table.
std::vector<std::string> CategoriesOf(Ien ien);

/// Adds a category, even if it exists already, and broadcasts the change.
void AddCategory(const Category& category);

/// Deletes every category of this text and broadcasts the change. Transactions keep their text.
void RemoveCategory(std::string_view text);

} // namespace books
