#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/ChangeWatch.h"
#include "platform/database/Connection.h"
#include "platform/database/TextIndex.h"
#include "search/IndexUpdate.h"
#include "search/Target.h"

namespace search {

/// Something other than a record that can be found: a report, a command, a setting.
struct Item {
    std::string group; ///< the heading of its results; items of a group follow one another
    std::string icon;
    std::string title;
    std::string detail;
    std::string words; ///< searched besides the title and the detail
};

struct Hit {
    std::string title;
    std::string detail;
    /// The record to open; otherwise it is the item of this number.
    std::optional<Target> record;
    std::size_t item = 0;
};

struct HitGroup {
    std::string name;
    std::string icon;
    std::vector<Hit> hits; ///< the best first
    bool hasMore = false;
};

/// Finds records and items by words. The words of the records are in an index beside the books, in
/// a file that can be deleted at any time; if there can't be such a file, the index is in memory.
class Finder {
  public:
    /// Searches the books that are open on `books`, which must outlive it. Nothing is read yet.
    explicit Finder(platform::Connection& books);
    ~Finder();
    Finder(const Finder&) = delete;
    Finder& operator=(const Finder&) = delete;

    /// Returns the file of the index of these books.
    static std::filesystem::path IndexFile(const platform::Connection& books);

    /// Replaces the items.
    void SetItems(std::vector<Item> items);
    const std::vector<Item>& Items() const { return items_; }

    /// Returns whether the records were written to since they were last read; Step then reads them
    /// again, and is to be called until it returns true. Takes no time if nothing was written.
    bool IsStale();
    bool Step();
    /// Drops the work that Step has begun, so that nobody waits for it; the next Step starts over.
    void Abandon();
    /// Returns whether Step has begun and isn't done; no records are found in the meantime.
    bool IsReading() const { return update_ != nullptr; }
    int Percent() const;

    /// Returns what the user should know about the search; empty as a rule.
    std::string Notice() const;

    /// Returns the records and items that have all words of the text, up to `most` hits of each
    /// group. Records are found as they were when last read. Returns nothing for a text without a
    /// word.
    std::vector<HitGroup> Find(std::string_view text, std::size_t most);

  private:
    struct Query;

    void OpenIndex();
    void UseMemory(const platform::DatabaseError& failure);
    void Recover(const platform::DatabaseError& failure);
    void StepOnce();
    std::vector<HitGroup> FindAll(std::string_view text, std::size_t most);
    std::vector<HitGroup> FindWords(const Query& query, std::size_t most);
    void FindRecords(const Query& query, std::size_t most, std::vector<HitGroup>& groups);
    void FindItems(const Query& query, std::size_t most, std::vector<HitGroup>& groups);

    platform::Connection& books_;
    std::unique_ptr<platform::ChangeWatch> watch_;
    bool hasRead_ = false;
    std::optional<std::int64_t> version_;     ///< of the books as they are in the index
    std::optional<std::int64_t> nextVersion_; ///< as they were when the update began
    std::unique_ptr<platform::TextIndex> index_;
    bool isInMemory_ = false;
    bool wasEmptied_ = false;
    std::unique_ptr<IndexUpdate> update_;
    std::string notice_;
    std::vector<std::string> faults_;
    std::vector<Item> items_;
    std::unique_ptr<platform::TextIndex> itemIndex_;
};

} // namespace search
