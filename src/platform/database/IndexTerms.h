#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/TextIndex.h"

struct sqlite3;

namespace platform {

class PreparedStatement;

/// The words that the full-text table `found` of an index holds. For the beginning of a word the
/// engine merges the places of all words that begin so before it returns the first one; the same
/// words written out are found many times faster.
class IndexTerms {
  public:
    explicit IndexTerms(sqlite3* index);
    ~IndexTerms();
    IndexTerms(const IndexTerms&) = delete;
    IndexTerms& operator=(const IndexTerms&) = delete;

    /// Does what TextIndex::WrittenOut does.
    std::optional<std::vector<SearchWord>> WrittenOut(std::span<const SearchWord> words);

  private:
    SearchWord WrittenOut(const SearchWord& word);
    bool AddTerms(std::string_view beginning, std::vector<std::string>& terms);

    std::unique_ptr<PreparedStatement> next_;
};

} // namespace platform
