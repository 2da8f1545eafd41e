#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Errors.h"

namespace SQLite {
class Database;
}

namespace platform {

class IndexTerms;
class PreparedStatement;

/// A text that can be found, with its key and the data that are kept with it.
struct IndexedText {
    std::int64_t key = 0;   ///< matches come in the order of their keys
    std::uint64_t mark = 0; ///< shows whether the source of the text has changed since
    std::string title;
    std::string detail;
    std::string target;
    std::string words; ///< the text that is searched; the others are only kept
};

/// A word to look for. A form of several words is found if they follow one another. Case and
/// accents don't matter, and nothing in a form has a meaning of its own.
struct SearchWord {
    std::vector<std::string> forms; ///< one of them must be there
    bool isWhole = false;           ///< otherwise the beginning of a word is enough
};

/// Finds words in texts by the engine's full-text index, in a file of its own or in memory. Its
/// texts are copies: it can be emptied and filled again at any time. A failure throws
/// DatabaseError.
class TextIndex {
  public:
    /// Makes an empty index in memory.
    TextIndex();
    /// Opens the index in `file`. A file that isn't there is made, private to the user; one that is
    /// damaged, or of another layout, is emptied. Throws DatabaseError if it can't be written to,
    /// or if another program is writing to it.
    TextIndex(const std::filesystem::path& file, std::int32_t layout);
    ~TextIndex();
    TextIndex(const TextIndex&) = delete;
    TextIndex& operator=(const TextIndex&) = delete;

    /// Returns whether a failure means that the index is damaged, which Empty cures.
    static bool IsDamage(const DatabaseError& failure);
    /// Says why the index can't be used, to follow "because ".
    static std::string ReasonOf(const DatabaseError& failure);
    /// Makes it a sound and empty index, whatever it holds.
    void Empty();

    struct Known {
        std::int64_t key = 0;
        std::uint64_t mark = 0;
    };
    /// Returns the keys from `first` to `last` in order, with their marks.
    std::vector<Known> Keys(std::int64_t first, std::int64_t last);

    /// Begins changes; Commit keeps all of them together. Throws DatabaseError if another program
    /// is making changes.
    void Begin();
    void Commit();
    /// Drops the changes since Begin, if there are any.
    void RollBack() noexcept;
    /// Adds a text; it replaces the text with the same key, if there is one.
    void Put(const IndexedText& text);
    void Remove(std::int64_t key);

    /// During its lifetime, everything is read from the index as it was at the first read, whatever
    /// another program writes; the file is locked only once.
    class View {
      public:
        explicit View(TextIndex& index);
        ~View();
        View(const View&) = delete;
        View& operator=(const View&) = delete;

      private:
        TextIndex& index_;
    };

    /// A text that was found. It is valid only until the call that receives it returns.
    struct Match {
        std::int64_t key = 0;
        std::string_view title;
        std::string_view detail;
        std::string_view target;
    };
    /// Returns these words with each beginning replaced by the words of the index that begin so, if
    /// they are few: a large index finds them many times faster. Returns nothing if no word of the
    /// index begins so, and nothing can be found.
    std::optional<std::vector<SearchWord>> WrittenOut(std::span<const SearchWord> words);
    /// Calls `take` with each text that has all these words, from the key `first` on, in order,
    /// until it returns false. Nothing is found without words.
    void Find(std::span<const SearchWord> words, std::int64_t first,
              const std::function<bool(const Match& match)>& take);

  private:
    void SetUp();
    void MakeTables();
    bool HasTables() const;
    void Command(const char* sql);
    void DropStatements();
    PreparedStatement& Use(std::unique_ptr<PreparedStatement>& statement, const char* sql);
    void DropWords(std::int64_t key);

    std::int32_t layout_ = 0;
    std::unique_ptr<SQLite::Database> database_;
    std::unique_ptr<PreparedStatement> put_;
    std::unique_ptr<PreparedStatement> putWords_;
    std::unique_ptr<PreparedStatement> remove_;
    std::unique_ptr<PreparedStatement> readWords_;
    std::unique_ptr<PreparedStatement> dropWords_;
    std::unique_ptr<PreparedStatement> find_;
    std::unique_ptr<IndexTerms> terms_;
};

/// Returns the full-text expression for texts that have all these words, empty without words.
std::string MatchExpression(std::span<const SearchWord> words);

} // namespace platform
