#pragma once

#include <cstdint>
#include <string>

#include <CLI/CLI.hpp>

namespace vestrelctl {

// What the words of several commands have in common.

/// Refuses, as wrong usage, a word that is no day.
CLI::Validator IsDay();

/// The name of a record as a transaction keeps it. An Error when there is no such record.
std::string NameOf(std::int16_t kind, std::int32_t id);

} // namespace vestrelctl
