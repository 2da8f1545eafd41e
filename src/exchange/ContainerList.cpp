#include "exchange/ContainerList.h"

#include <fstream>

#include <fmt/core.h>

#include "platform/values/Errors.h"

namespace exchange {

namespace {

bool MakesSense(const EntryHeader& header, std::int64_t position) {
    return header.format == kContainerFormat && header.fileSize >= 0 && !header.filePath.empty() &&
           header.dataPosition == position + kHeaderLength + 1;
}

EntryState StateOf(const ContainerEntry& entry, std::int64_t size) {
    if (!MakesSense(entry.header, entry.position)) return EntryState::Damaged;
    const std::int64_t end = entry.position + kHeaderLength + entry.header.fileSize;
    return end <= size ? EntryState::Whole : EntryState::Cut;
}

} // namespace

std::string_view StateWord(EntryState state) {
    switch (state) {
        case EntryState::Whole:
            return "whole";
        case EntryState::Cut:
            return "cut";
        case EntryState::Damaged:
            break;
    }
    return "damaged";
}

std::vector<ContainerEntry> ListContainer(const std::filesystem::path& container) {
    std::ifstream file(container, std::ios::binary);
    std::error_code failure;
    const auto length = std::filesystem::file_size(container, failure);
    if (!file || failure) {
        throw platform::Error(fmt::format("{} can't be read", container.string()));
    }
    if (length == 0) throw platform::Error(fmt::format("{} is empty", container.string()));
    const auto size = static_cast<std::int64_t>(length);
    std::vector<ContainerEntry> entries;
    for (std::int64_t position = 0; position < size;) {
        std::string bytes(kHeaderSize, '\0');
        file.seekg(position);
        file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (file.bad()) throw platform::Error(fmt::format("{} can't be read", container.string()));
        ContainerEntry entry;
        entry.header = ReadHeader(bytes);
        entry.position = position;
        const bool isWholeHeader = position + kHeaderLength <= size;
        entry.state = isWholeHeader ? StateOf(entry, size) : EntryState::Cut;
        file.clear();
        position += kHeaderLength + entry.header.fileSize;
        const bool isLast = entry.state != EntryState::Whole;
        entries.push_back(std::move(entry));
        if (isLast) break;
    }
    const bool isContainer =
        !entries.empty() && (entries.size() > 1 || entries.front().state != EntryState::Damaged);
    if (!isContainer) {
        throw platform::Error(fmt::format("{} is not a backup of Vestrel", container.string()));
    }
    return entries;
}

} // namespace exchange
