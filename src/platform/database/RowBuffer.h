#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/database/Cell.h"

namespace platform {

/// Rows of stored values, packed: a value takes a byte and the bytes of its digits or letters, and
/// the values of a row follow one another. A row never moves; if it is replaced, its old place
/// stays unused until all rows are dropped.
class RowBuffer {
  public:
    /// Drops all rows, and all memory except what a few of them need.
    void Clear();
    std::size_t Size() const { return rows_.size(); }

    /// Starts a row; values that were put since the last row was kept are dropped.
    void Start() { making_.clear(); }
    void Put(const Cell& cell);
    /// Keeps the row that was made, as a new one or in place of another.
    void Append();
    void Replace(std::size_t row);

    /// Finds the offsets of the first `count` values of a row, for Read.
    void Locate(std::size_t row, std::size_t count, std::vector<std::uint32_t>& places) const;
    Cell Read(std::size_t row, std::uint32_t place) const;
    /// Returns the value at `index`, which is found by skipping the values before it.
    Cell ReadAt(std::size_t row, std::size_t index) const;

  private:
    const char* Keep();

    struct Chunk {
        std::unique_ptr<char[]> memory;
        std::size_t size = 0;
    };
    std::vector<Chunk> chunks_;
    std::size_t used_ = 0; // of the last chunk
    std::vector<const char*> rows_;
    std::string making_;
};

} // namespace platform
