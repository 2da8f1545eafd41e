#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace exchange {

// Records of a fixed length: little-endian numbers, and texts padded with blanks, each at its
// offset counted from 0.

class FixedRecord {
  public:
    /// `bytes` must outlive the record and be long enough for every field that is read.
    explicit FixedRecord(std::string_view bytes) : bytes_(bytes) {}

    /// Without the padding; blanks and zero bytes alike count as such.
    std::string Text(std::size_t at, std::size_t size) const;
    std::int16_t Integer(std::size_t at) const;
    std::int32_t Long(std::size_t at) const;

  private:
    std::string_view bytes_;
};

class FixedRecordWriter {
  public:
    /// All zero.
    explicit FixedRecordWriter(std::size_t size) : bytes_(size, '\0') {}

    /// Returns false for a text that doesn't fit, and writes nothing then.
    bool SetText(std::size_t at, std::size_t size, std::string_view text);
    void SetInteger(std::size_t at, std::int16_t number);
    void SetLong(std::size_t at, std::int32_t number);
    void SetBytes(std::size_t at, std::string_view bytes);

    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

} // namespace exchange
