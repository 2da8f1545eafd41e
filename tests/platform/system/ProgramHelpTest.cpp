#include "platform/system/ProgramHelp.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr std::array kOptions = {
    platform::HelpEntry{"--data DIR", "The books"},
    platform::HelpEntry{"/abcdefghij=KLMNOPQRSTUVWX", "As wide as fits"},
    platform::HelpEntry{"/abcdefghij=KLMNOPQRSTUVWXY", "One letter wider\nand a second line"},
};
constexpr std::array kFiles = {platform::HelpEntry{"a", "one\ntwo"}};
constexpr std::array kSections = {
    platform::HelpSection{"Options", kOptions},
    platform::HelpSection{"Files", kFiles},
};
constexpr platform::ProgramHelp kHelp = {
    .name = "tool", .summary = "Does it.", .usage = "[OPTIONS]", .sections = kSections};

bool IsAnswered(std::vector<std::string> words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size());
    for (std::string& word : words)
        pointers.push_back(word.data());
    return platform::AnswerIfAsked(kHelp, pointers);
}

TEST(ProgramHelp, AlignsItsTextsAndGivesLongNamesALine) {
    EXPECT_EQ(platform::HelpText(kHelp), R"(Does it.
Usage: tool [OPTIONS]

Options:
  --data DIR                  The books
  /abcdefghij=KLMNOPQRSTUVWX  As wide as fits
  /abcdefghij=KLMNOPQRSTUVWXY
                              One letter wider
                              and a second line

Files:
  a                           one
                              two
)");
}

TEST(ProgramHelp, IsGivenOnlyWhenAskedFor) {
    testing::internal::CaptureStdout();
    EXPECT_FALSE(IsAnswered({"tool", "--data", "--helpful", "h", "help"}));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    for (const char* const word : {"--help", "-h"}) {
        testing::internal::CaptureStdout();
        EXPECT_TRUE(IsAnswered({"tool", "--data", "x", word}));
        EXPECT_EQ(testing::internal::GetCapturedStdout(), platform::HelpText(kHelp)) << word;
    }
    testing::internal::CaptureStdout();
    EXPECT_TRUE(IsAnswered({"tool", "--version"}));
    EXPECT_TRUE(testing::internal::GetCapturedStdout().starts_with("tool "));
}

} // namespace
