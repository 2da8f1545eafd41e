#include "platform/database/IndexTerms.h"

#include <sqlite3.h>

#include <algorithm>

#include "platform/database/EngineFailure.h"
#include "platform/database/PreparedStatement.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

/// The index has the beginnings of two and three letters as words of their own.
constexpr std::size_t kShortest = 4;
/// More words than this take longer to list than the engine takes to merge them.
constexpr std::size_t kMostTerms = 8;

/// Returns whether the index holds the form unchanged except for its case, as a single word.
bool IsPlain(std::string_view form) {
    return std::ranges::all_of(form, [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    });
}

} // namespace

IndexTerms::IndexTerms(sqlite3* index) {
    constexpr const char* kTerms =
        "CREATE VIRTUAL TABLE IF NOT EXISTS temp.terms "
        "USING fts5vocab('main', 'found', 'instance')";
    if (sqlite3_exec(index, kTerms, nullptr, nullptr, nullptr) != SQLITE_OK)
        ThrowEngineError(index);
    next_ = std::make_unique<PreparedStatement>(
        index, "SELECT term FROM temp.terms WHERE term >= ? LIMIT 1");
}

IndexTerms::~IndexTerms() = default;

std::optional<std::vector<SearchWord>> IndexTerms::WrittenOut(std::span<const SearchWord> words) {
    std::vector<SearchWord> written;
    for (const SearchWord& word : words) {
        written.push_back(WrittenOut(word));
        if (written.back().forms.empty()) return std::nullopt;
    }
    return written;
}

SearchWord IndexTerms::WrittenOut(const SearchWord& word) {
    const auto isLongBeginning = [](const std::string& form) {
        return form.size() >= kShortest && IsPlain(form);
    };
    if (word.isWhole || !std::ranges::all_of(word.forms, isLongBeginning)) return word;
    SearchWord written{.forms = {}, .isWhole = true};
    for (const std::string& form : word.forms) {
        if (!AddTerms(ToLower(form), written.forms)) return word;
    }
    return written;
}

/// Adds the words that begin so; returns false if there are too many.
bool IndexTerms::AddTerms(std::string_view beginning, std::vector<std::string>& terms) {
    std::string from(beginning);
    while (true) {
        const StatementRun run(*next_);
        next_->Bind(1, Cell::OfText(from), PreparedStatement::TextLife::UntilReset);
        if (!next_->Step()) return true;
        const std::string term(next_->Column(0).bytes);
        if (!term.starts_with(beginning)) return true;
        if (terms.size() == kMostTerms) return false;
        terms.push_back(term);
        from = term + '\1'; // no word comes between the two
    }
}

} // namespace platform
