#include "search/Words.h"

#include <gmock/gmock.h>

namespace {

using search::Numbers;

TEST(Words, HoldsAmountsAndDaysInOneForm) {
    struct Case {
        const char* text;
        const char* words;
    };
    for (const Case& each : std::initializer_list<Case>{
             {"1,050.00", "1050 1050p00"},
             {"(1,050.25)", "1050 1050p25"},
             {"$12,345,678.9", "12345678 12345678p90"},
             {".50", "0 0p50"},
             {"1,050", "1050 1050p00"},
             {"1050", "1050"},
             {"1,05", "1,05"},   // no groups of three
             {"1.2.3", "1.2.3"}, // a version
             {"1.255", "1.255"}, // no cents
             {"11/05/2026", "11d05d2026 2026m11"},
             {"1/5/26", "01d05d2026 2026m01"},
             {"13/05/2026", "13/05/2026"}, // no month
             {"1/2", "1/2"},
             {"due 1/5/2026: 50.00!", "due 01d05d2026 2026m01 50 50p00"},
             {"O'Brien", "O'Brien OBrien"},
             {"  a\t b\n", "a b"},
             {"", ""},
         }) {
        EXPECT_EQ(search::IndexWords(each.text), each.words) << each.text;
    }
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
    struct Case {
        const char* text;
        const char* query;
    };
    for (const Case& each : std::initializer_list<Case>{
             {"Smith elm", "Smith elm"},
             {"1050", "=1050"},
             {"$1,050", "=1050"},
             {"1050.00", "=1050p00"},
             {"1,050.", "=1050"},
             {"1050.2", "1050p2"},
             {".5", "0p5"},
             {"-1,050.25", "=1050p25"},
             {"(1,050.25)", "=1050p25"},
             {"11/5/2026", "=11d05d2026"},
             {"11/05/26", "11d05d2026|11d05d26"},
             {"11/05/2", "11d05d2|11d05d2"},
             {"11/2026", "=2026m11"},
             {"11/5", "11d05d|11/5"},
             {"13/5", "13/5"},
             {"555-0101", "555-0101"},
             {"AND \"x", "AND \"x"},
             {"   ", ""},
         }) {
        EXPECT_EQ(Query(each.text), each.query) << each.text;
    }
    EXPECT_EQ(Query("1050 1,050 1,050.25", Numbers::Beginning), "1050 1050 =1050p25");
    std::string many;
    for (int i = 0; i < 5000; ++i)
        many += "a ";
    EXPECT_EQ(search::QueryWords(many, Numbers::Whole).size(), 32U);
    EXPECT_TRUE(search::HasNumber("rent 1,050"));
    EXPECT_FALSE(search::HasNumber("rent 2B 555-0101"));
}

} // namespace
