#include "search/Words.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>

#include <fmt/core.h>

namespace search {

namespace {

constexpr std::size_t kMostWords = 32;
constexpr std::string_view kBlanks = " \t\r\n\f\v";

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool AreDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, IsDigit);
}

/// Calls `work` with each piece of the text between blanks.
template <class Work>
void ForEachWord(std::string_view text, Work work) {
    std::size_t at = 0;
    while ((at = text.find_first_not_of(kBlanks, at)) != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(kBlanks, at), text.size());
        if (!work(text.substr(at, end - at))) return;
        at = end;
    }
}

/// Returns a word without the signs around it; the point of ".50" stays.
std::string_view Bare(std::string_view word) {
    const std::size_t first = word.find_first_not_of("([{$+-\"'");
    if (first == std::string_view::npos) return {};
    word.remove_prefix(first);
    return word.substr(0, word.find_last_not_of(")]}.,;:!?\"'") + 1);
}

struct Amount {
    std::string whole;
    std::string_view cents; ///< at most two digits
    bool hasPoint = false;
};

/// Returns the digits before the point without their commas, which must separate groups of three.
std::optional<std::string> JoinGroups(std::string_view text) {
    std::string digits;
    std::size_t group = 0;
    bool hasComma = false;
    for (const char letter : text) {
        if (letter == ',') {
            if (group == 0 || group > 3 || (hasComma && group != 3)) return std::nullopt;
            hasComma = true;
            group = 0;
        } else if (IsDigit(letter)) {
            digits += letter;
            ++group;
        } else {
            return std::nullopt;
        }
    }
    if (hasComma && group != 3) return std::nullopt;
    return digits;
}

/// Returns the amount that a word means; nothing for a word without a comma and without a point.
std::optional<Amount> AmountIn(std::string_view word) {
    if (word.find_first_of(",.") == std::string_view::npos) return std::nullopt;
    Amount amount;
    const std::size_t point = word.find('.');
    amount.hasPoint = point != std::string_view::npos;
    if (amount.hasPoint) {
        amount.cents = word.substr(point + 1);
        if (!AreDigits(amount.cents) || amount.cents.size() > 2) return std::nullopt;
    }
    const auto whole = JoinGroups(word.substr(0, point));
    if (!whole) return std::nullopt;
    // An amount under one is written without a digit before its point.
    amount.whole = whole->empty() ? "0" : *whole;
    return amount;
}

/// The parts of a day or of the beginning of one, between slashes; -1 for a part that is missing.
struct Day {
    int first = -1;
    int second = -1;
    int third = -1;
    std::size_t lastDigits = 0;
};

std::optional<Day> DayIn(std::string_view word) {
    Day day;
    std::array<int*, 3> parts = {&day.first, &day.second, &day.third};
    std::size_t count = 0;
    while (count < parts.size()) {
        const std::size_t slash = std::min(word.find('/'), word.size());
        const std::string_view part = word.substr(0, slash);
        if (!AreDigits(part) || part.size() > 4) return std::nullopt;
        std::from_chars(part.data(), part.data() + part.size(), *parts.at(count));
        day.lastDigits = part.size();
        ++count;
        if (slash == word.size()) break;
        word.remove_prefix(slash + 1);
        if (count == parts.size() || word.empty()) return std::nullopt;
    }
    if (count < 2 || day.first < 1 || day.first > 12) return std::nullopt;
    return day;
}

/// Returns the year; one of two digits is in this century.
int FullYear(const Day& day) {
    return day.lastDigits == 2 ? 2000 + day.third : day.third;
}

std::string DayWord(const Day& day) {
    return fmt::format("{:02}d{:02}d{}", day.first, day.second, FullYear(day));
}

/// Returns the words to look for. A year of fewer than four digits may still be being typed.
platform::SearchWord DayQuery(const Day& day) {
    if (day.lastDigits == 4) return {{DayWord(day)}, true};
    const std::string typed = fmt::format("{:02}d{:02}d{}", day.first, day.second, day.third);
    return {{DayWord(day), typed}, false};
}

platform::SearchWord WordFor(std::string_view typed, Numbers numbers) {
    const std::string_view word = Bare(typed);
    if (AreDigits(word)) return {{std::string(word)}, numbers == Numbers::Whole};
    if (const auto amount = AmountIn(word)) {
        if (!amount->hasPoint) return {{amount->whole}, numbers == Numbers::Whole};
        return {{fmt::format("{}p{}", amount->whole, amount->cents)}, amount->cents.size() == 2};
    }
    if (const auto day = DayIn(word)) {
        if (day->third >= 0) return DayQuery(*day);
        if (day->lastDigits == 4) return {{fmt::format("{}m{:02}", day->second, day->first)}, true};
        return {{fmt::format("{:02}d{:02}d", day->first, day->second), std::string(word)}, false};
    }
    return {{std::string(typed)}, false};
}

/// Returns the word without apostrophes: "O'Brien" is found as "OBrien" too.
std::string WithoutApostrophes(std::string_view word) {
    std::string joined = " ";
    std::ranges::copy_if(word, std::back_inserter(joined), [](char c) { return c != '\''; });
    return joined;
}

} // namespace

std::string IndexWords(std::string_view text) {
    std::string words;
    ForEachWord(text, [&](std::string_view word) {
        if (!words.empty()) words += ' ';
        const std::string_view bare = Bare(word);
        const auto amount = AmountIn(bare);
        const auto day = amount ? std::nullopt : DayIn(bare);
        if (amount) {
            words += fmt::format("{} {}p{:0<2}", amount->whole, amount->whole, amount->cents);
        } else if (day && day->third >= 0 && day->lastDigits % 2 == 0) {
            words += fmt::format("{} {}m{:02}", DayWord(*day), FullYear(*day), day->first);
        } else {
            words += word;
            if (word.find('\'') != std::string_view::npos) words += WithoutApostrophes(word);
        }
        return true;
    });
    return words;
}

std::vector<platform::SearchWord> QueryWords(std::string_view text, Numbers numbers) {
    std::vector<platform::SearchWord> words;
    ForEachWord(text, [&](std::string_view word) {
        words.push_back(WordFor(word, numbers));
        return words.size() < kMostWords;
    });
    return words;
}

bool HasNumber(std::string_view text) {
    bool found = false;
    ForEachWord(text, [&](std::string_view word) {
        const std::string_view bare = Bare(word);
        found = AreDigits(bare) || AmountIn(bare).has_value();
        return !found;
    });
    return found;
}

} // namespace search
