#include "platform/dialogs/Dialogs.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Dialogs, WithNobodyThereTheyPrintAndAgreeToNothing) {
    testing::internal::CaptureStderr();
    TheDialogs().ShowMessage("Notice", "Rent is late.", Icon::Information);
    TheDialogs().ShowMessage("", "No title.", Icon::None);
    const bool answer = TheDialogs().AskYesNo("Whoa!", "Delete it?", Icon::Question);
    EXPECT_FALSE(answer);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Notice: Rent is late.\nNo title.\nWhoa!: Delete it?\n");
}

} // namespace
} // namespace platform
