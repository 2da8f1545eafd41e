#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/database/Cell.h"

namespace platform {

/// Rows of stored values, packed: a value takes a byte and what its digits or letters need, a row
/// the values one after another. A row never moves; one that is replaced leaves its old place
/// unused until all are dropped.
class RowBuffer {
  public:
    /// Drops all rows and all memory but what a few of them need.
    void Clear();
    std::size_t Size() const { return rows_.size(); }

    /// Starts a row; what was put since the last one was kept is dropped.
    void Start() { making_.clear(); }
    void Put(const Cell& cell);
    /// Keeps the row that was made: as a further one, or in the place of another.
    void Append();
    void Replace(std::size_t row);

    /// Finds the offsets of the first `count` values of a row, for Read.
    void Locate(std::size_t row, std::size_t count, std::vector<std::uint32_t>& places) const;
    Cell Read(std::size_t row, std::uint32_t place) const;
    /// The value at `index`, found by passing over those before it.
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
