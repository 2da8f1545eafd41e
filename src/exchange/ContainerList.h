#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/Container.h"

namespace exchange {

/// Whether an entry is whole.
enum class EntryState {
    Whole,
    Cut,     ///< the container ends before the entry does
    Damaged, ///< the header makes no sense, so that the place of the next entry isn't known
};
std::string_view StateWord(EntryState state);

struct ContainerEntry {
    EntryHeader header;
    EntryState state = EntryState::Whole;
    /// Where the header begins, counted from 0.
    std::int64_t position = 0;
};

/// Returns the entries of a container in order, each header checked against the file's length. An
/// entry that is cut off or damaged ends the list. Throws an Error if the container can't be read
/// or has no entries.
std::vector<ContainerEntry> ListContainer(const std::filesystem::path& container);

} // namespace exchange
