#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Date.h"

namespace tests {

inline constexpr std::int32_t kMortgageId = 201;
inline constexpr std::int32_t kBuildingId = 202;
inline constexpr std::int32_t kLenderId = 203;
inline constexpr std::int32_t kBankId = 204;

/// The process's session on a new database in `folder` with one mortgage of 100,000.00 at 6 percent
/// over 360 months, first due 01/15/2024, no escrow, insurance or fee, entered on 12/31/2023.
class BooksWithOneMortgage {
  public:
    explicit BooksWithOneMortgage(const std::filesystem::path& folder);
    ~BooksWithOneMortgage();
    BooksWithOneMortgage(const BooksWithOneMortgage&) = delete;
    BooksWithOneMortgage& operator=(const BooksWithOneMortgage&) = delete;
};

/// Writes a field of the one mortgage from its text; "NULL" unsets it.
void SetMortgageField(std::string_view field, std::string_view value);

/// The rows of a select, cells separated by "|", null as "null".
std::vector<std::string> Rows(std::string_view statement);

/// The charges and payments in the log: "day category period total flags".
std::vector<std::string> Log();

/// The mortgages' step of the run on that day; a record it has to pass over fails the test.
void RunMortgagesOn(platform::Date day);

} // namespace tests
