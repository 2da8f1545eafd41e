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
// Texts stand in quotes, their own quotes doubled, and may hold line ends; numbers and amounts are
// bare, Yes/No values #TRUE# and #FALSE#, a null is an empty quoted item.

/// The kind of a line, by its first item.
enum class PortMarker { Table, Fields, Record, None };

/// Adds a stored value as an item to a line.
void AppendPortItem(std::string& line, const platform::Cell& cell, platform::FieldType type);
void AppendPortText(std::string& line, std::string_view text);

struct PortItem {
    std::string_view text;
    bool quoted = false;
};

/// Reads the lines of such a file one by one. The memory needed is that of the longest line.
class PortReader {
  public:
    enum class Letters { Utf8, Latin1 };

    /// Throws an Error if the file can't be read. `letters` is what Latin-1 texts are turned from.
    PortReader(const std::filesystem::path& file, Letters letters);
    ~PortReader();
    PortReader(const PortReader&) = delete;
    PortReader& operator=(const PortReader&) = delete;

    /// Goes to the next line; false at the end of the file. Throws an Error if reading fails, or
    /// for a line that no memory should be spent on.
    bool NextLine();
    /// The number of the line, counted from 1, on which the present one begins in a text editor.
    std::int64_t Number() const { return number_; }
    PortMarker Marker() const { return marker_; }
    /// The items between the markers, valid until the next line is read.
    const std::vector<PortItem>& Items() const { return items_; }
    /// False for a line that doesn't end in its marker, or with an item that can't be read.
    bool IsWhole() const { return isWhole_; }

    /// Whether all that was read so far is UTF-8.
    bool IsUtf8() const { return isUtf8_; }
    /// Whether the file begins as one of 16-bit letters does, which isn't read.
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
    std::deque<std::string> kept_; // texts that don't stand in the buffer as they are
    std::size_t keptCount_ = 0;
    bool isWhole_ = false;
    bool isUtf8_ = true;
};

/// Returns an item as a field of `type` stores it; a text stays in its place or is made in
/// `scratch`. Throws a ConversionError or OverflowError for an item that the type can't hold.
platform::Cell CellOfItem(const PortItem& item, platform::FieldType type, std::string& scratch);

} // namespace exchange
