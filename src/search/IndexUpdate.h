#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"
#include "platform/database/TextIndex.h"
#include "search/SourceRow.h"

namespace search {

/// Brings an index up to date with the books, a little at a time, so that the window stays
/// responsive. Every record is compared with its text in the index, whoever has written it; only
/// what differs is written. A failure of the index is thrown; Faults returns the tables that can't
/// be read.
class IndexUpdate {
  public:
    IndexUpdate(platform::TextIndex& index, platform::Connection& books);
    ~IndexUpdate();
    IndexUpdate(const IndexUpdate&) = delete;
    IndexUpdate& operator=(const IndexUpdate&) = delete;

    /// Works for a few milliseconds. Returns true when all is done; only then are the changes kept,
    /// all of them together.
    bool Step();
    /// Returns how much is done, 0 to 100.
    int Percent() const;
    /// Returns how many texts were written or removed.
    std::int64_t Changes() const { return changes_; }
    /// Returns a line for each source that couldn't be read, whose records therefore aren't found.
    const std::vector<std::string>& Faults() const { return faults_; }

  private:
    void OpenSource();
    void CloseSource();
    void TakeRows();
    void TakeRow();
    /// Removes the texts before `key` whose records aren't there any more.
    void RemoveTo(std::int64_t key);
    // Return whether there is a row; a failure to read ends the source.
    bool HasRow();
    bool NextRow();
    template <class Work>
    bool Reads(Work work);

    platform::TextIndex& index_;
    platform::Connection& books_;
    std::size_t source_ = 0;
    platform::Recordset rows_;
    std::optional<SourceRows> reader_;
    std::vector<platform::TextIndex::Known> known_;
    std::size_t nextKnown_ = 0;
    std::int64_t lastKey_ = -1; ///< of the records of one number, the first is found
    std::size_t written_ = 0;   ///< in this step
    std::int64_t taken_ = 0;    ///< rows of this source
    std::int64_t changes_ = 0;
    std::vector<std::string> faults_;
    bool isDone_ = false;
};

} // namespace search
