#include "exchange/FixedRecord.h"

namespace exchange {

namespace {

constexpr unsigned kByteBits = 8;

std::uint32_t ReadNumber(std::string_view bytes, std::size_t at, unsigned size) {
    std::uint32_t number = 0;
    for (unsigned i = 0; i < size; ++i) {
        const auto byte = static_cast<unsigned char>(bytes.at(at + i));
        number |= static_cast<std::uint32_t>(byte) << (kByteBits * i);
    }
    return number;
}

void WriteNumber(std::string& bytes, std::size_t at, unsigned size, std::uint32_t number) {
    for (unsigned i = 0; i < size; ++i)
        bytes.at(at + i) = static_cast<char>((number >> (kByteBits * i)) & 0xFFU);
}

} // namespace

std::string FixedRecord::Text(std::size_t at, std::size_t size) const {
    std::string_view text = bytes_.substr(at, size);
    const std::size_t last = text.find_last_not_of(std::string_view(" \0", 2));
    text = text.substr(0, last == std::string_view::npos ? 0 : last + 1);
    return std::string(text);
}

std::int16_t FixedRecord::Integer(std::size_t at) const {
    return static_cast<std::int16_t>(ReadNumber(bytes_, at, sizeof(std::int16_t)));
}

std::int32_t FixedRecord::Long(std::size_t at) const {
    return static_cast<std::int32_t>(ReadNumber(bytes_, at, sizeof(std::int32_t)));
}

bool FixedRecordWriter::SetText(std::size_t at, std::size_t size, std::string_view text) {
    if (text.size() > size) return false;
    bytes_.replace(at, size, std::string(text) + std::string(size - text.size(), ' '));
    return true;
}

void FixedRecordWriter::SetInteger(std::size_t at, std::int16_t number) {
    WriteNumber(bytes_, at, sizeof number, static_cast<std::uint16_t>(number));
}

void FixedRecordWriter::SetLong(std::size_t at, std::int32_t number) {
    WriteNumber(bytes_, at, sizeof number, static_cast<std::uint32_t>(number));
}

void FixedRecordWriter::SetBytes(std::size_t at, std::string_view bytes) {
    bytes = bytes.substr(0, bytes_.size() - at);
    bytes_.replace(at, bytes.size(), bytes);
}

} // namespace exchange
