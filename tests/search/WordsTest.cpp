#include "search/Words.h"

#include <gmock/gmock.h>

#include "support/Cases.h"

namespace {

using search::Numbers;
using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/words.cases";

TEST(Words, HoldsAmountsAndDaysInOneForm) {
    ForEachCase(kCases, "held", [](const Case& each) {
        EXPECT_EQ(search::IndexWords(each["text"]), each["words"]);
    });
}

/// The forms of each word, "=" before one that must be whole.
std::string Query(std::string_view text, Numbers numbers = Numbers::Whole) {
    std::string line;
    for (const auto& word : search::QueryWords(text, numbers)) {
        if (!line.empty()) line += ' ';
        if (word.isWhole) line += '=';
        for (std::size_t i = 0; i < word.forms.size(); ++i)
            line += (i > 0 ? "|" : "") + word.forms[i];
    }
    return line;
}

TEST(Words, AsksForAmountsAndDaysAsTheyAreHeld) {
    ForEachCase(kCases, "asked for",
                [](const Case& each) { EXPECT_EQ(Query(each["text"]), each["query"]); });
    EXPECT_EQ(Query("1050 1,050 1,050.25", Numbers::Beginning), "1050 1050 =1050p25");
    std::string many;
    for (int i = 0; i < 5000; ++i)
        many += "a ";
    EXPECT_EQ(search::QueryWords(many, Numbers::Whole).size(), 32U);
    EXPECT_TRUE(search::HasNumber("rent 1,050"));
    EXPECT_FALSE(search::HasNumber("rent 2B 555-0101"));
}

} // namespace
