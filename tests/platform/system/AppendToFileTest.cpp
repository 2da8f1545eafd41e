#include "platform/system/AppendToFile.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/system/Paths.h"
#include "support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

constexpr fs::perms kMode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;

TEST(AppendToFile, LosesNoLineThatAnotherProgramAddsWhileLinesAreDropped) {
    const support::TemporaryFolder folder;
    const fs::path file = folder / "lines";
    platform::AppendLine(file, "old", kMode);
    constexpr int kLines = 500;
    const pid_t other = fork();
    if (other == 0) {
        for (int line = 0; line < kLines; ++line)
            platform::AppendLine(file, "new", kMode);
        _exit(0);
    }
    int status = -1;
    while (waitpid(other, &status, WNOHANG) == 0) {
        platform::AppendLine(file, "old", kMode);
        platform::KeepLines(file, [](std::string_view line) { return line == "new\n"; });
    }
    EXPECT_EQ(status, 0);
    const std::string text = platform::ReadWholeFile(file);
    EXPECT_EQ(text.size(), kLines * std::string_view("new\n").size());
    EXPECT_EQ(fs::status(file).permissions(), kMode);
}

} // namespace
