#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "books/PostTransaction.h"

namespace books {

/// What the category box shows while nothing is chosen; a row without a category holds the words.
inline constexpr std::string_view kNoCategory = "No Category Selected";

struct Category {
    std::string text;
    Ien ien = Ien::Income;

    friend bool operator==(const Category&, const Category&) = default;
};

/// The categories of the payments that the program posts by itself; an event can wait for them.
inline constexpr std::array<std::string_view, 5> kPaymentCategories = {
    "Rent Payment", "Partial Rent Payment", "Rent Subsidy Payment", "Deposit Payment",
    "Mortgage Payment"};

/// Reads the form in which screens hand a category on: the text, "|", its class ("Deposit
/// Refund|2"). Without a class, or with an unknown one, it is income.
Category ParseCategory(std::string_view text);

// The upkeep of the list of categories. Failures are thrown.

/// The categories of a class, in the order of the table.
std::vector<std::string> CategoriesOf(Ien ien);

/// Adds a category, even one that is there already, and tells the open screens.
void AddCategory(const Category& category);

/// Removes every category of this text and tells the open screens. Transactions keep their text.
void RemoveCategory(std::string_view text);

} // namespace books
