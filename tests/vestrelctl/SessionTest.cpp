// The companion as a user at a terminal meets it. A file sessions/NAME.session holds commands of a
// shell, each with what it prints:
//
//   Prose that says what is shown.
//
//     $ vestrelctl sql - <<'SQL'
//     > SELECT 1 AS N;
//     > SQL
//     "N"
//     1
//     $ vestrelctl sell
//     vestrelctl: there is no command sell …
//     [2]
//
// Errors come after the output, and an exit status that isn't 0 after both. An ellipsis stands for
// any text, of several lines too. A session begins in an empty folder, which is printed as HERE,
// and without a registry; setup.sh is read before each command.
//
// The session as it ran is in actual/NAME.session of the build's test folder: to renew the
// expectation, look at it and copy it.

#include "vestrelctl/VestrelctlFixture.h"

#include <sstream>

#include "support/Patterns.h"

namespace tests {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kCommand = "  $ ";
constexpr std::string_view kMore = "  > ";
constexpr std::string_view kPrinted = "  ";

/// The lines of a file; empty ones belong to what follows them.
std::vector<std::string> LinesOf(const fs::path& file) {
    std::vector<std::string> lines;
    std::istringstream input(ReadFile(file));
    std::string line;
    for (std::string blank; std::getline(input, line);) {
        blank += line + '\n';
        if (line.empty()) continue;
        lines.push_back(blank);
        blank.clear();
    }
    return lines;
}

class Session : public Vestrelctl, public testing::WithParamInterface<fs::path> {
  protected:
    /// Runs a shell's words in the session's folder; returns what they print, as a session has it.
    std::string Print(const std::string& words) {
        std::ofstream(scratch_ / "words") << ". \"$TESTS/setup.sh\"\n" << words;
        const std::string here = folder_.Path().string();
        const std::string at = scratch_.Path().string();
        const int status = std::system(
            ("cd '" + here +
             "' && TESTS='" VESTREL_TEST_DATA "' XDG_CONFIG_HOME=\"$PWD/.config\" PATH='" +
             fs::path(VESTRELCTL).parent_path().string() + "':\"$PATH\" sh '" + at +
             "/words' </dev/null >'" + at + "/out' 2>'" + at + "/err'")
                .c_str());
        std::istringstream printed(ReadFile(scratch_ / "out") + ReadFile(scratch_ / "err"));
        std::string text;
        for (std::string line; std::getline(printed, line);) {
            for (std::size_t i = 0; (i = line.find(here, i)) != std::string::npos;)
                line.replace(i, here.size(), "HERE");
            text += line.empty() ? "\n" : std::string(kPrinted) + line + "\n";
        }
        while (text.ends_with("\n\n"))
            text.pop_back();
        const int code = WEXITSTATUS(status);
        return code == 0 ? text : text + "  [" + std::to_string(code) + "]\n";
    }

  private:
    support::TemporaryFolder scratch_;
};

TEST_P(Session, PrintsWhatIsWritten) {
    const std::vector<std::string> lines = LinesOf(GetParam());
    const auto is = [&](std::size_t i, std::string_view start) {
        return i < lines.size() &&
               lines[i].substr(lines[i].find_first_not_of('\n')).starts_with(start);
    };
    std::string actual;
    std::size_t commands = 0;
    for (std::size_t i = 0; i < lines.size();) {
        const std::size_t start = i++;
        actual += lines[start];
        if (!is(start, kCommand)) continue;
        ++commands;
        std::string words = lines[start].substr(lines[start].find(kCommand) + kCommand.size());
        for (; is(i, kMore); ++i) {
            actual += lines[i];
            words += lines[i].substr(kMore.size());
        }
        std::string expected;
        for (; is(i, kPrinted) && !is(i, kCommand); ++i)
            expected += lines[i];
        const std::string printed = Print(words);
        actual += support::Matches(printed, expected) ? expected : printed;
    }
    EXPECT_GT(commands, 0U);
    fs::create_directories("actual");
    std::ofstream("actual" / GetParam().filename()) << actual;
    EXPECT_EQ(actual, ReadFile(GetParam())) << GetParam();
}

std::vector<fs::path> Sessions() {
    const fs::directory_iterator files(VESTREL_TEST_DATA "/sessions");
    return {begin(files), end(files)};
}

INSTANTIATE_TEST_SUITE_P(Files, Session, testing::ValuesIn(Sessions()), [](const auto& session) {
    std::string name = session.param.stem().string();
    std::ranges::replace(name, '-', '_');
    return name;
});

} // namespace

} // namespace tests
