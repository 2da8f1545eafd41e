#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/database/Connection.h"

namespace store {

/// The class of a category of transactions.
enum class CategoryClass : std::int16_t { Income = 0, Expense = 1, Unclassified = 2 };

struct DefaultCategory {
    std::string_view category;
    CategoryClass ien;
};

/// Returns the categories that a new database knows, in the order in which they are added.
std::span<const DefaultCategory> DefaultCategories();

/// Adds every default category whose name isn't there yet.
void InitTransCategories(platform::Connection& connection);

} // namespace store
