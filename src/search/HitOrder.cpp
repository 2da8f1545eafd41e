#include "search/HitOrder.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "platform/values/Text.h"

namespace search {

namespace {

enum class Rank : std::uint8_t { TitleBegins, InTitle, Elsewhere };

bool IsLetter(char c) {
    const auto letter = static_cast<unsigned char>(c);
    return letter >= 0x80 || (letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'z');
}

/// Returns whether a word of the title begins with `word`; both are in lower case.
bool HasWord(std::string_view title, std::string_view word) {
    for (std::size_t at = title.find(word); at != std::string_view::npos;
         at = title.find(word, at + 1)) {
        if (at == 0 || !IsLetter(title[at - 1])) return true;
    }
    return false;
}

/// Returns the text in lower case. Most titles are plain ASCII, for which this is much faster.
std::string Lower(std::string_view text) {
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (!std::ranges::all_of(text, isAscii)) return platform::ToLower(text);
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

Rank RankOf(const std::string& search, std::string_view shown) {
    const std::string title = Lower(shown);
    if (title.starts_with(search)) return Rank::TitleBegins;
    std::size_t at = 0;
    while ((at = search.find_first_not_of(" \t\r\n", at)) != std::string::npos) {
        const std::size_t end = std::min(search.find_first_of(" \t\r\n", at), search.size());
        if (!HasWord(title, std::string_view(search).substr(at, end - at))) return Rank::Elsewhere;
        at = end;
    }
    return Rank::InTitle;
}

std::string Typed(std::string_view text) {
    // A longer text is in no title.
    constexpr std::size_t kLongest = 200;
    return platform::ToLower(platform::Trim(text.substr(0, kLongest)));
}

} // namespace

void KeepBest(std::string_view text, std::size_t most, HitGroup& group) {
    const std::string search = Typed(text);
    std::vector<std::pair<Rank, std::size_t>> ranks;
    for (std::size_t i = 0; i < group.hits.size(); ++i)
        ranks.emplace_back(RankOf(search, group.hits[i].title), i);
    std::ranges::sort(ranks);
    std::vector<Hit> sorted;
    for (const auto& [rank, place] : ranks)
        sorted.push_back(std::move(group.hits[place]));
    group.hits = std::move(sorted);
    group.hasMore = group.hits.size() > most;
    if (group.hasMore) group.hits.resize(most);
}

void SortGroups(std::string_view text, std::vector<HitGroup>& groups) {
    const std::string search = Typed(text);
    std::ranges::stable_sort(groups, {}, [&](const HitGroup& group) {
        return RankOf(search, group.hits.front().title);
    });
}

} // namespace search
