#include "platform/values/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace platform {
namespace {

TEST(Text, TrimsBlanksAtBothEndsOnly) {
    EXPECT_EQ(Trim(" \t a b\r\n"), "a b");
    EXPECT_EQ(Trim(" \n "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Text, ChangesTheCaseOfEveryScriptAndLeavesStrayBytes) {
    EXPECT_EQ(ToUpper("straße, žluť, ωμέγα 1"), "STRAßE, ŽLUŤ, ΩΜΈΓΑ 1");
    EXPECT_EQ(ToLower("ÀÉ Ж ID"), "àé ж id");
    EXPECT_EQ(ToUpper("a\xFF\xC3"), "A\xFF\xC3");
    EXPECT_EQ(ToLower("\xED\xA0\x80\xC0\x80\xF4\x90\x80\x80Z"),
              "\xED\xA0\x80\xC0\x80\xF4\x90\x80\x80z");
    EXPECT_EQ(ToLower("\xF0\x9F\x8F\xA0 HOME"), "\xF0\x9F\x8F\xA0 home");
}

TEST(Text, ComparesWithoutRegardToCase) {
    EXPECT_TRUE(EqualIgnoringCase("O'Brien ÉCOLE", "o'bRIEN école"));
    EXPECT_FALSE(EqualIgnoringCase("rent", "rents"));
    EXPECT_FALSE(EqualIgnoringCase("\xFF", "\xFE"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_TRUE(EqualIgnoringCase(std::string_view("A\0B", 3), std::string_view("a\0b", 3)));
    EXPECT_FALSE(EqualIgnoringCase(std::string_view("a\0b", 3), std::string_view("a\0c", 3)));
}

TEST(Text, OrdersAllTextsOneWay) {
    const std::vector<std::string> ordered = {
        "",     "1",    "A",     "a b", "AB", "ab1", "b", "Z", "É", "éa", "ж", "\xF0\x9F\x8F\xA0",
        "\x80", "\xC3", "\xC3z", "\xFF"};
    for (std::size_t i = 0; i < ordered.size(); ++i) {
        for (std::size_t j = 0; j < ordered.size(); ++j) {
            const int order = CompareIgnoringCase(ordered[i], ordered[j]);
            EXPECT_EQ(order < 0, i < j) << ordered[i] << " " << ordered[j];
            EXPECT_EQ(order > 0, i > j) << ordered[i] << " " << ordered[j];
        }
    }
}

TEST(Text, FindsAPartWithoutRegardToCase) {
    EXPECT_TRUE(ContainsIgnoringCase("SELECT a Where b", "WHERE"));
    EXPECT_TRUE(ContainsIgnoringCase("Vanity", "van"));
    EXPECT_TRUE(ContainsIgnoringCase("la ÉCOLE", "école"));
    EXPECT_TRUE(ContainsIgnoringCase("", ""));
    EXPECT_FALSE(ContainsIgnoringCase("wher", "where"));
    EXPECT_FALSE(ContainsIgnoringCase("", "x"));
}

TEST(Text, CountsCharactersNotBytes) {
    EXPECT_EQ(LeftCharacters("žluť", 2), "žl");
    EXPECT_EQ(LeftCharacters("žluť", 9), "žluť");
    EXPECT_EQ(LeftCharacters("abc", 0), "");
    EXPECT_EQ(LeftCharacters("\xFFž1", 2), "\xFFž");
}

TEST(Text, IsFoundInTimeThatGrowsWithItsLength) {
    // A search that starts again at each character takes minutes for this.
    std::string text(1'000'001, 'a');
    text.back() = 'b';
    const std::string part = text.substr(600'000);
    EXPECT_EQ(FindText(text, part), 600'000);
    EXPECT_EQ(FindText(text, part + "c"), std::string_view::npos);
    EXPECT_EQ(FindText(text, "b", 1'000'000), 1'000'000);
    EXPECT_EQ(FindText(text, "a", 1'000'000), std::string_view::npos);
    EXPECT_EQ(FindText("abc", "", 3), 3);
    EXPECT_EQ(FindText("abc", "", 4), std::string_view::npos);
}

} // namespace
} // namespace platform
