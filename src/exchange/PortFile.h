#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Cell.h"
#include "platform/values/Value.h"

namespace exchange {

// The text form of tables: lines of items with commas between them; a marker begins and ends each
// line.
//   "Table","Room","/Table"
//   "Fields","IdRoom","RoomType","/Fields"
//   "Record",4823114,"Bedroom","/Record"
// Texts are in quotes, their own quotes doubled, and may hold line ends; numbers and amounts are
// bare, Yes/No values #TRUE# and #FALSE#, a null is an empty quoted item.

/// The kind of a line, which its first item names.
enum class PortMarker { Table, Fields, Record, None };

/// Appends a stored value to a line as an item.
void AppendPortItem(std::string& line, const platform::Cell& cell, platform::FieldType type);
void AppendPortText(std::string& line, std::string_view text);

struct PortItem {
    std::string_view text;
    bool quoted = false;
};

/// Reads the lines of such a file one by one, with memory for the longest line.
class PortReader {
  public:
    enum class Letters { Utf8, Latin1 };

    /// Throws an Error if the file can't be read. `letters` says whether to convert from Latin-1.
    PortReader(const std::filesystem::path& file, Letters letters);
    ~PortReader();
    PortReader(const PortReader&) = delete;
    PortReader& operator=(const PortReader&) = delete;

    /// Reads the next line; returns false at the end of the file. Throws an Error if reading fails,
    /// or for a line of unreasonable length.
    bool NextLine();
    /// Returns the number of the line, counted from 1 as in a text editor, on which the current one
    /// begins.
    std::int64_t Number() const { return number_; }
    PortMarker Marker() const { return marker_; }
    /// Returns the items between the markers; valid until the next line is read.
    const std::vector<PortItem>& Items() const { return items_; }
    /// Returns false for a line that doesn't end in its marker, or with a malformed item.
    bool IsWhole() const { return isWhole_; }

    /// Returns whether everything read so far is UTF-8.
    bool IsUtf8() const { return isUtf8_; }
    /// Returns whether the file begins like 16-bit Unicode, which isn't supported.
    bool IsUtf16() const;
    std::int64_t BytesRead() const { return consumed_; }
    std::int64_t Size() const { return size_; }

  private:
    bool Fill();
    bool FindLine(std::size_t& end);
    void Split(std::string_view line);
    std::string_view TakeQuoted(std::string_view& rest);
    std::string_view Keep(std::string text);

    int descriptor_ = -1;
    std::filesystem::path file_;
    Letters letters_;
    std::int64_t size_ = 0;
    std::int64_t consumed_ = 0;
    std::string buffer_;
    std::size_t begin_ = 0; // of the first line that wasn't returned yet
    bool atEnd_ = false;
    std::int64_t number_ = 0;
    std::int64_t nextNumber_ = 1;
    PortMarker marker_ = PortMarker::None;
    std::vector<PortItem> items_;
    std::deque<std::string> kept_; // texts that differ from the bytes in the buffer
    std::size_t keptCount_ = 0;
    bool isWhole_ = false;
    bool isUtf8_ = true;
};

/// Returns an item as a field of `type` stores it; a string is a view of the item or of `scratch`.
/// Throws a ConversionError or OverflowError if the type can't hold the item.
platform::Cell CellOfItem(const PortItem& item, platform::FieldType type, std::string& scratch);

} // namespace exchange
