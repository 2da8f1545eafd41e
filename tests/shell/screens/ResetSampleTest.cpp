#include <QAction>

#include <fstream>

#include "core/BooksSettings.h"
#include "core/Configuration.h"
#include "core/Globals.h"
#include "shell/screens/KestromFixture.h"
#include "shell/screens/ResetSampleCommand.h"

namespace {

using Said = std::vector<std::string>;

class ResetSampleCommand : public tests::KestromTest {
  protected:
    /// A program in the place of the companion, which writes its arguments to a file.
    std::filesystem::path Companion(const char* andThen) {
        const std::string program = PathTo("companion");
        std::ofstream(program) << "#!/bin/sh\necho \"$@\" > '" << PathTo("asked") << "'\n"
                               << andThen << '\n';
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        return program;
    }
    std::string Asked() const {
        std::ifstream file(PathTo("asked"));
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_F(ResetSampleCommand, IsOfferedForASampleWhoseTitleSaysSo) {
    EXPECT_FALSE(Item("mnuResetSample").isVisible());
    EXPECT_EQ(Window().windowTitle().count(QStringLiteral("Sample")), 0);
    core::MarkAsSample(core::App().DbPath);
    Reopen();
    EXPECT_TRUE(Item("mnuResetSample").isVisible());
    EXPECT_TRUE(Window().windowTitle().endsWith(QStringLiteral(" (Sample)")));
}

TEST_F(ResetSampleCommand, AsksRunsAndSaysWhatFailed) {
    core::MarkAsSample(core::App().DbPath);
    Window();
    shell::screens::ResetOpenSample(Companion("exit 0"));
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(Asked(), "") << "No is the answer";
    Answer({true});
    shell::screens::ResetOpenSample(Companion("exit 0"));
    EXPECT_EQ(Heard().size(), 1U) << "the question, and no fault";
    EXPECT_EQ(Asked(), "--today 05/17/2024 init --sample --reset " + core::App().DbPath + "\n");
    Answer({true});
    shell::screens::ResetOpenSample(Companion("echo 'in use' >&2; exit 1"));
    EXPECT_EQ(Heard().back(), "Reset Sample: in use");
    Answer({true});
    shell::screens::ResetOpenSample(PathTo("missing"));
    EXPECT_EQ(Heard().back(), "Reset Sample: " + PathTo("missing") + " can't be started.");
}

} // namespace
