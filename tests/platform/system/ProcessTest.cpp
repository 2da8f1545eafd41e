#include "platform/system/Process.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/system/Paths.h"
#include "support/TemporaryFolder.h"

namespace platform {
namespace {

TEST(Process, HandsItsArgumentsOverAsTheyAre) {
    const support::TemporaryFolder folder;
    const auto pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    ASSERT_TRUE(StartDetached("sh", {"-c", "printf '%s|' \"$@\" > \"$0\"", pipe.string(),
                                     "/altdb=O'Brien & Sons", "", "$HOME"}));
    EXPECT_EQ(ReadWholeFile(pipe), "/altdb=O'Brien & Sons||$HOME|");
}

TEST(Process, SaysWhenAProgramCantBeStarted) {
    const support::TemporaryFolder folder;
    WriteFileAtomically(folder / "plain", "no program");
    EXPECT_FALSE(StartDetached(folder / "missing"));
    EXPECT_FALSE(StartDetached(folder / "plain"));
    EXPECT_FALSE(StartDetached(folder.Path()));
}

} // namespace
} // namespace platform
