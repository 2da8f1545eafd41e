#include "store/TransCategories.h"

namespace store {

namespace {

using enum CategoryClass;

constexpr DefaultCategory kDefaults[] = {
    {"Rent Payment", Income},
    {"Deposit Charge", Income},
    {"Other Income", Income},
    {"Vending", Income},
    {"Laundry", Income},
    {"Insurance", Expense},
    {"Advertising", Expense},
    {"Property Taxes", Expense},
    {"Mortgage Payment", Expense},
    {"Auto and Travel", Expense},
    {"Repairs", Expense},
    {"Cleaning and Maint", Expense},
    {"Commissions", Expense},
    {"Legal Fees", Expense},
    {"Management Fees", Expense},
    {"Mortgage Interest", Expense},
    {"Other Interest", Expense},
    {"Supplies", Expense},
    {"Taxes", Expense},
    {"Other Expenses", Expense},
    {"HOA Dues", Expense},
    {"Utilities", Expense},
    {"Mortgage Payoff", Expense},
    {"Deposit", Unclassified},
    {"Deposit Refund", Unclassified},
    {"Mortgage Escrow", Unclassified},
};

} // namespace

std::span<const DefaultCategory> DefaultCategories() {
    return kDefaults;
}

void InitTransCategories(platform::Connection& connection) {
    for (const DefaultCategory& each : kDefaults) {
        if (connection.Scalar("SELECT Category FROM TransCategory WHERE Category = ?",
                              {each.category})) {
            continue;
        }
        connection.Execute("INSERT INTO TransCategory (Category, IEN) VALUES (?, ?)",
                           {each.category, static_cast<std::int16_t>(each.ien)});
    }
}

} // namespace store
