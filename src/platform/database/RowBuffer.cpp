#include "platform/database/RowBuffer.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t kFirstChunk = 512;
constexpr std::size_t kLargestChunk = std::size_t{1} << 20;
constexpr std::size_t kRowsKept = 256;

// The byte before a value gives its type and how many bytes follow. From kShortText on it also
// gives the length of the text.
enum Tag : unsigned char { kNull, kZero, kOne, kInt8, kInt16, kInt32, kInt64, kReal, kText, kBlob };
constexpr unsigned kShortText = 16;
constexpr std::size_t kLongestShortText = 0xFF - kShortText;

template <typename Number>
Number NumberAt(const char* place) {
    Number number;
    std::memcpy(&number, place, sizeof number);
    return number;
}

template <typename Number>
void PutNumber(std::string& out, Tag tag, Number number) {
    char bytes[1 + sizeof number];
    bytes[0] = static_cast<char>(tag);
    std::memcpy(bytes + 1, &number, sizeof number);
    out.append(bytes, sizeof bytes);
}

void PutInteger(std::string& out, std::int64_t number) {
    if (number == 0 || number == 1) {
        out += static_cast<char>(number == 0 ? kZero : kOne);
    } else if (std::in_range<std::int8_t>(number)) {
        PutNumber(out, kInt8, static_cast<std::int8_t>(number));
    } else if (std::in_range<std::int16_t>(number)) {
        PutNumber(out, kInt16, static_cast<std::int16_t>(number));
    } else if (std::in_range<std::int32_t>(number)) {
        PutNumber(out, kInt32, static_cast<std::int32_t>(number));
    } else {
        PutNumber(out, kInt64, number);
    }
}

void PutBytes(std::string& out, Tag tag, std::string_view bytes) {
    if (tag == kText && bytes.size() <= kLongestShortText) {
        out += static_cast<char>(kShortText + bytes.size());
    } else {
        PutNumber(out, tag, static_cast<std::uint32_t>(bytes.size()));
    }
    out += bytes;
}

std::size_t SizeAt(const char* place) {
    const auto tag = static_cast<unsigned char>(*place);
    if (tag >= kShortText) return 1 + std::size_t{tag} - kShortText;
    switch (tag) {
        case kInt8:
            return 1 + sizeof(std::int8_t);
        case kInt16:
            return 1 + sizeof(std::int16_t);
        case kInt32:
            return 1 + sizeof(std::int32_t);
        case kInt64:
            return 1 + sizeof(std::int64_t);
        case kReal:
            return 1 + sizeof(double);
        case kText:
        case kBlob:
            return 1 + sizeof(std::uint32_t) + NumberAt<std::uint32_t>(place + 1);
        default:
            return 1;
    }
}

std::string_view LongBytes(const char* place) {
    return {place + 1 + sizeof(std::uint32_t), NumberAt<std::uint32_t>(place + 1)};
}

Cell CellAt(const char* place) {
    const auto tag = static_cast<unsigned char>(*place);
    if (tag >= kShortText) return Cell::OfText({place + 1, std::size_t{tag} - kShortText});
    switch (tag) {
        case kZero:
            return Cell::OfInteger(0);
        case kOne:
            return Cell::OfInteger(1);
        case kInt8:
            return Cell::OfInteger(NumberAt<std::int8_t>(place + 1));
        case kInt16:
            return Cell::OfInteger(NumberAt<std::int16_t>(place + 1));
        case kInt32:
            return Cell::OfInteger(NumberAt<std::int32_t>(place + 1));
        case kInt64:
            return Cell::OfInteger(NumberAt<std::int64_t>(place + 1));
        case kReal:
            return Cell::OfReal(NumberAt<double>(place + 1));
        case kText:
            return Cell::OfText(LongBytes(place));
        case kBlob:
            return {Cell::Kind::Blob, 0, 0, LongBytes(place)};
        default:
            return {};
    }
}

} // namespace

void RowBuffer::Clear() {
    if (chunks_.size() > 1) chunks_.resize(1);
    used_ = 0;
    rows_.clear();
    if (rows_.capacity() > kRowsKept) rows_.shrink_to_fit();
    making_.clear();
}

void RowBuffer::Put(const Cell& cell) {
    switch (cell.kind) {
        case Cell::Kind::Null:
            making_ += static_cast<char>(kNull);
            return;
        case Cell::Kind::Integer:
            return PutInteger(making_, cell.integer);
        case Cell::Kind::Real:
            return PutNumber(making_, kReal, cell.real);
        case Cell::Kind::Text:
            return PutBytes(making_, kText, cell.bytes);
        case Cell::Kind::Blob:
            return PutBytes(making_, kBlob, cell.bytes);
    }
}

const char* RowBuffer::Keep() {
    const std::size_t size = making_.size();
    if (chunks_.empty() || chunks_.back().size - used_ < size) {
        const std::size_t next =
            chunks_.empty() ? kFirstChunk : std::min(2 * chunks_.back().size, kLargestChunk);
        Chunk chunk{nullptr, std::max(next, size)};
        chunk.memory = std::make_unique_for_overwrite<char[]>(chunk.size);
        chunks_.push_back(std::move(chunk));
        used_ = 0;
    }
    char* place = chunks_.back().memory.get() + used_;
    std::memcpy(place, making_.data(), size);
    used_ += size;
    making_.clear();
    return place;
}

void RowBuffer::Append() {
    rows_.push_back(Keep());
}

void RowBuffer::Replace(std::size_t row) {
    rows_[row] = Keep();
}

void RowBuffer::Locate(std::size_t row, std::size_t count,
                       std::vector<std::uint32_t>& places) const {
    places.resize(count);
    const char* const start = rows_[row];
    const char* place = start;
    for (std::size_t i = 0; i < count; ++i) {
        places[i] = static_cast<std::uint32_t>(place - start);
        place += SizeAt(place);
    }
}

Cell RowBuffer::Read(std::size_t row, std::uint32_t place) const {
    return CellAt(rows_[row] + place);
}

Cell RowBuffer::ReadAt(std::size_t row, std::size_t index) const {
    const char* place = rows_[row];
    for (std::size_t i = 0; i < index; ++i)
        place += SizeAt(place);
    return CellAt(place);
}

} // namespace platform
