#pragma once

#include <filesystem>
#include <string>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace dbmender {

/// The first entries of new books. Each may be blank.
struct FirstEntries {
    std::string company;
    std::string address; ///< of the first building
    std::string unit;    ///< its first unit; a building without an address has none
    platform::Currency rent;
    platform::Date since; ///< the first day that the books keep
};

/// Creates a database in `folder` with these entries. Throws Error on failure, and then leaves no
/// database there.
void MakeFirstBooks(const std::filesystem::path& folder, const FirstEntries& entries);

} // namespace dbmender
