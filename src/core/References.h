#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace core {

// Lookups in the reference tables that come with the program. Without those tables, and on any
// failure, nothing is found.

/// Returns the assessor's page for a tax account of a county; empty if the county isn't known. A
/// state of two letters is taken for its abbreviation.
std::string FindTaxUrl(std::string_view account, std::string_view county, std::string_view state);
/// Opens that page in the browser; does nothing if there is no such page.
void GetTaxUrl(std::string_view account, std::string_view county, std::string_view state);

struct ZipPlace {
    std::string city;
    std::string state;
    std::string county;
};

/// Returns the place of a zip code, which must be all digits.
std::optional<ZipPlace> ZipLookup(std::string_view zip);

} // namespace core
