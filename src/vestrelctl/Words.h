#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include <CLI/CLI.hpp>

#include "platform/values/Currency.h"

namespace vestrelctl {

// What the words of several commands have in common.

/// Refuses, as wrong usage, a word that is no day.
CLI::Validator IsDay();

/// The name of a record as a transaction keeps it. An Error when there is no such record.
std::string NameOf(std::int16_t kind, std::int32_t id);

/// The line that a payment ends with.
void PrintPaid(std::int32_t idTransaction, std::size_t charges, platform::Currency amount);

} // namespace vestrelctl
