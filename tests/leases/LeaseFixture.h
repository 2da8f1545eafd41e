#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace tests {

inline constexpr std::int32_t kLeaseId = 101;
inline constexpr std::int32_t kUnitId = 102;
inline constexpr std::int32_t kTenantId = 103;
inline constexpr std::int32_t kBuildingId = 104;
inline constexpr std::int32_t kRentAccountId = 105;
inline constexpr std::int32_t kPayorId = 106;

/// The process's session on a new database in `folder` with one ordinary monthly lease of 1,000.00,
/// contracted since 01/01/2023, charged up to 12/31/2023, next due 01/01/2024, without fees.
class BooksWithOneLease {
  public:
    explicit BooksWithOneLease(const std::filesystem::path& folder);
    ~BooksWithOneLease();
    BooksWithOneLease(const BooksWithOneLease&) = delete;
    BooksWithOneLease& operator=(const BooksWithOneLease&) = delete;
};

/// Writes a field of the one lease from its text; "NULL" unsets it.
void SetLeaseField(std::string_view field, std::string_view value);

} // namespace tests
