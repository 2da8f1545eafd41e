#include "platform/dialogs/Dialogs.h"

#include <gtest/gtest.h>

#include "support/ScriptedDialogs.h"

namespace platform {
namespace {

TEST(Dialogs, WithNobodyThereTheyPrintAndAgreeToNothing) {
    testing::internal::CaptureStderr();
    TheDialogs().ShowMessage("Notice", "Rent is late.", Icon::Information);
    const bool answer = TheDialogs().AskYesNo("Whoa!", "Delete it?", Icon::Question);
    EXPECT_FALSE(answer);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Notice: Rent is late.\nWhoa!: Delete it?\n");
}

TEST(Dialogs, AScriptAnswersInOrderAndKeepsWhatWasSaid) {
    {
        const support::ScriptedDialogs person({true, false});
        TheDialogs().ShowMessage("Notice", "Hello", Icon::Exclamation);
        EXPECT_TRUE(TheDialogs().AskYesNo("Whoa!", "One?", Icon::Question));
        EXPECT_EQ(person.AnswersLeft(), 1U);
        EXPECT_FALSE(TheDialogs().AskYesNo("Whoa!", "Two?", Icon::Question));
        EXPECT_FALSE(TheDialogs().AskYesNo("Whoa!", "Three?", Icon::Question));
        ASSERT_EQ(person.Heard().size(), 4U);
        EXPECT_EQ(person.Heard()[0].text, "Hello");
        EXPECT_EQ(person.Heard()[0].icon, Icon::Exclamation);
        EXPECT_FALSE(person.Heard()[0].question);
        EXPECT_EQ(person.Heard()[3].text, "Three?");
        EXPECT_TRUE(person.Heard()[3].question);
    }
    testing::internal::CaptureStderr();
    TheDialogs().ShowMessage("", "Alone again", Icon::None);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Alone again\n");
}

} // namespace
} // namespace platform
