#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// A calendar story, read from a text file: a lease as it stands, the days that pass and what
/// happens on them, and what the books then hold.
///
///   given               fields of the lease that matter, `Field = value`; the others are ordinary
///   when                `today DATE` (the program starts on that day), `daily DATE` (it starts
///                       every day up to that one), `roll forward`, `reprocess`, `pay
///                       rent|subsidy|deposit`, `pay amount A` (of rent), `return payment, fee A`
///                       (the last one), `settle from credit`, `charge deposits`, `set Field =
///                       value`
///   then                the whole ledger, a row a line: `date | class.flags | 'category' | amount
///   |
///                       description` and `| paid` once a transaction has settled it; then fields
///                       of the lease, and `unit = ` and `tenant = ` for their statuses
struct Story {
    std::vector<std::pair<std::string, std::string>> given;
    std::vector<std::string> when;
    std::vector<std::string> then;
};

Story ReadStory(const std::filesystem::path& file);

/// Lives through the story on a new database in `folder`; the lines of `then` as the books really
/// stand, for comparison.
std::vector<std::string> LiveThrough(const Story& story, const std::filesystem::path& folder);

} // namespace tests
