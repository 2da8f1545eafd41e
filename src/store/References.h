#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

#include "platform/database/Connection.h"

namespace store {

inline constexpr std::string_view kReferencesFile = "References.mdb";

struct ZipCode {
    std::int32_t zip;
    std::string_view city;
    std::string_view state;
    std::string_view county;
};

/// Returns the places that the reference database is made with: towns of every state.
std::span<const ZipCode> ZipCodes();

/// Makes the reference database in `directory`, which must exist: zip codes, and the pages where
/// some counties show a property's taxes. It is only read afterwards; an existing one stays as it
/// is. Throws an Error if it can't be made; then nothing is left.
void CreateReferences(const std::filesystem::path& directory);

} // namespace store
