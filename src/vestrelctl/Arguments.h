#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <CLI/CLI.hpp>

#include "books/PostTransaction.h"
#include "leases/PreviewRow.h"
#include "platform/values/Currency.h"

namespace vestrelctl {

// Arguments that several commands have in common. The errors name the option at fault.

/// Rejects, as wrong usage, text that isn't a valid date.
CLI::Validator IsDate();

/// Rejects, as wrong usage, the name of an option in the place of a value: the value is missing.
CLI::Validator IsValue();

/// Rejects, as wrong usage, text that isn't a record's number.
CLI::Validator IsId();

/// The forms that ReadParty takes, for the help.
inline constexpr const char* kPartyForms = "account:ID|tenant:ID|name:TEXT";

/// Reads who pays or is paid: "account:60", "tenant:30", or "name:Hardware Store" for somebody
/// without a record. Throws an Error if it has another form, or there is no such record.
books::Party ReadParty(std::string_view option, const std::string& text);

/// Reads an amount of money. Throws an Error that names the option if it isn't an amount.
platform::Currency ReadAmount(std::string_view option, const std::string& text);

/// Returns the name of an account as a transaction keeps it. Throws an Error if there is no such
/// account.
std::string AccountName(std::string_view option, std::int32_t id);

/// Prints what a payment will write, as CSV.
void PrintPreview(const leases::PreviewRows& rows);

/// Prints the line that a payment ends with.
void PrintPaid(std::int32_t idTransaction, std::size_t charges, platform::Currency amount);

} // namespace vestrelctl
