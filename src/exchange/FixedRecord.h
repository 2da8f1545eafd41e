#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace exchange {

// Records of fixed length: little-endian numbers and blank-padded strings at offsets counted from
// 0.

class FixedRecord {
  public:
    /// `bytes` must outlive the record and be long enough for every field that is read.
    explicit FixedRecord(std::string_view bytes) : bytes_(bytes) {}

    /// Returns the string without its padding of blanks or zero bytes.
    std::string Text(std::size_t at, std::size_t size) const;
    std::int16_t Integer(std::size_t at) const;
    std::int32_t Long(std::size_t at) const;

  private:
    std::string_view bytes_;
};

class FixedRecordWriter {
  public:
    /// Starts with all bytes zero.
    explicit FixedRecordWriter(std::size_t size) : bytes_(size, '\0') {}

    /// Returns false, and writes nothing, if the text doesn't fit.
    bool SetText(std::size_t at, std::size_t size, std::string_view text);
    void SetInteger(std::size_t at, std::int16_t number);
    void SetLong(std::size_t at, std::int32_t number);
    void SetBytes(std::size_t at, std::string_view bytes);

    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

} // namespace exchange
