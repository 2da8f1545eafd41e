#include "core/RecordNotices.h"

#include <gtest/gtest.h>

#include "support/ScriptedDialogs.h"

namespace {

TEST(RecordNotices, TellOfARecordThatIsMissingOrDoubled) {
    struct Case {
        std::int16_t count;
        bool found;
        std::string title;
        std::string firstLine;
    };
    for (const Case& c :
         {Case{-1, false, "No Record Found", "No record was loaded.\r\n\r\n"},
          Case{0, false, "No Record Found", "No record was loaded.\r\n\r\n"}, Case{1, true, "", ""},
          Case{2, true, "Duplicate Record Found",
               "Multiple records were found with the same ID.\r\n\r\n"}}) {
        const support::ScriptedDialogs person;
        EXPECT_EQ(core::OneRecordFound(c.count), c.found) << c.count;
        ASSERT_EQ(person.Heard().size(), c.title.empty() ? 0U : 1U) << c.count;
        if (c.title.empty()) continue;
        const auto& said = person.Heard().front();
        EXPECT_EQ(said.title, c.title);
        EXPECT_EQ(said.text.substr(0, c.firstLine.size()), c.firstLine);
        EXPECT_TRUE(said.text.ends_with("\r\n\r\nPress OK to continue."));
        EXPECT_EQ(said.icon, platform::Icon::Information);
        EXPECT_FALSE(said.question);
    }
}

} // namespace
