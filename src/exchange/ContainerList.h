#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/Container.h"

namespace exchange {

/// How much of an entry a reader finds.
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

/// Returns the entries of a container in order, each header checked against the file's length. A
/// cut or damaged one is the last. Throws an Error if the container can't be read, or has no entry
/// at all.
std::vector<ContainerEntry> ListContainer(const std::filesystem::path& container);

} // namespace exchange
