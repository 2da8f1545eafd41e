#include "core/binding/KeyFilter.h"

#include <gtest/gtest.h>

namespace {

using core::binding::FilterKey;
using core::binding::KeyedBox;

struct Case {
    const char* what;
    std::string_view tag;
    std::u32string_view text;
    std::size_t caret;
    char32_t key;
    char32_t passed; ///< 0: dropped
};

constexpr std::size_t kEnd = 99;

class KeyFilterTable : public testing::TestWithParam<Case> {};

TEST_P(KeyFilterTable, TakesOrDropsTheKey) {
    const Case& given = GetParam();
    KeyedBox box;
    box.tag = given.tag;
    box.text = given.text;
    box.caret = given.caret == kEnd ? given.text.size() : given.caret;
    EXPECT_EQ(FilterKey(box, given.key), given.passed);
}

constexpr Case kCases[] = {
    {"number takes a digit", "#Term", U"1", kEnd, U'2', U'2'},
    {"number takes a first point", "#Term", U"", kEnd, U'.', U'.'},
    {"number drops a second point", "#Term", U"1.", kEnd, U'.', 0},
    {"number drops a sign", "#Term", U"", kEnd, U'-', 0},
    {"number drops a letter", "#Term", U"", kEnd, U'e', 0},
    {"number has any decimals", "#Term", U"1.2345", kEnd, U'6', U'6'},
    {"number drops other digits than ours", "#Term", U"", kEnd, U'\u0663', 0},
    {"money has two decimals", "$Rent", U"12.34", kEnd, U'5', 0},
    {"money takes the second decimal", "$Rent", U"12.3", kEnd, U'5', U'5'},
    {"money takes digits before the point", "$Rent", U"12.34", 1, U'5', U'5'},
    {"money looks at the caret, not at the length", "$Rent", U"12.34", 4, U'5', U'5'},
    {"money drops commas", "$Rent", U"1", kEnd, U',', 0},
    {"one decimal is one", "&Baths", U"2.5", kEnd, U'5', 0},
    {"one decimal takes the first", "&Baths", U"2.", kEnd, U'5', U'5'},
    {"one decimal before the point", "&Baths", U"2.5", 1, U'5', U'5'},
    {"percent drops what passes 100", "%Fee", U"10", kEnd, U'1', 0},
    {"percent takes 100 itself", "%Fee", U"10", kEnd, U'0', U'0'},
    {"percent drops past 100", "%Fee", U"100", kEnd, U'0', 0},
    {"percent tries the digit at the end", "%Fee", U"10", 0, U'1', 0},
    {"percent takes decimals up to 100", "%Fee", U"99.9", kEnd, U'9', U'9'},
    {"percent drops a decimal over 100", "%Fee", U"100.", kEnd, U'1', 0},
    {"percent drops a second point", "%Fee", U"1.", kEnd, U'.', 0},
    {"percent drops junk behind junk", "%Fee", U"a", kEnd, U'1', 0},
    {"nothing is typed here", "^Id", U"", kEnd, U'1', 0},
    {"but erased", "^Id", U"5", kEnd, 8, 8},
    {"date takes a digit", "@Date", U"1", kEnd, U'1', U'1'},
    {"date takes a slash", "@Date", U"1", kEnd, U'/', U'/'},
    {"date drops a point", "@Date", U"1", kEnd, U'.', 0},
    {"capitals stay", "-State", U"", kEnd, U'A', U'A'},
    {"letters become capitals", "-State", U"", kEnd, U'z', U'Z'},
    {"capitals only", "-State", U"", kEnd, U'1', 0},
    {"text takes all", "_Name", U"", kEnd, U'\u00e9', U'\u00e9'},
    {"so does a box without a tag", "", U"", kEnd, U'!', U'!'},
};

INSTANTIATE_TEST_SUITE_P(Keys, KeyFilterTable, testing::ValuesIn(kCases),
                         [](const auto& test) { return "Case" + std::to_string(test.index); });

TEST(KeyFilter, StopsAtTheGreatestLengthUnlessSomethingIsSelected) {
    KeyedBox box;
    box.tag = "_Zip";
    box.text = U"12345";
    box.maxLength = 5;
    EXPECT_EQ(FilterKey(box, U'6'), core::binding::kNoKey);
    EXPECT_EQ(FilterKey(box, core::binding::kBackspace), core::binding::kBackspace);
    box.selected = 1;
    EXPECT_EQ(FilterKey(box, U'6'), U'6');
    box.selected = 0;
    box.maxLength = 0;
    EXPECT_EQ(FilterKey(box, U'6'), U'6');
}

} // namespace
