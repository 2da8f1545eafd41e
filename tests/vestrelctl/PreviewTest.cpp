#include <algorithm>
#include <sstream>

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream input(text);
    for (std::string line; std::getline(input, line);)
        lines.push_back(line);
    return lines;
}

TEST_F(Vestrelctl, PreviewsWhatAnUpdateWillPost) {
    ASSERT_EQ(Run("--today 11/21/2026 init --sample --units 6 " + Books()).status, 0);
    const std::string all = "export-text '" + (folder_ / "all.csv").string() + "'";
    ASSERT_EQ(Run(OnBooks() + all).status, 0);
    const std::string before = ReadFile(folder_ / "all.csv");
    const std::string on = "--today 11/25/2026 " + OnBooks();

    const Outcome preview = Run(on + "preview --until 01/31/2027");
    EXPECT_EQ(preview.status, 0) << preview.errors;
    const std::vector<std::string> lines = LinesOf(preview.output);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines[0], R"("No.","RecordKind","RecordId","Date","What","For","Amount","Flow")");
    EXPECT_EQ(Run(on + "--read-only preview --until 01/31/2027").output, preview.output);
    Run(OnBooks() + all);
    EXPECT_EQ(ReadFile(folder_ / "all.csv"), before);

    // A day without money has no amount: two commas before its flow.
    const auto posts = std::ranges::count_if(
        lines, [](const std::string& line) { return line.find(",,") == std::string::npos; });
    const Outcome update = Run("--today 01/31/2027 " + OnBooks() + "update");
    EXPECT_EQ(LinesOf(update.output).back(), std::to_string(posts - 1) + " rows posted.");

    const std::vector<std::string> runs = LinesOf(Run(OnBooks() + "--read-only runs").output);
    EXPECT_EQ(
        runs.at(0),
        R"("Run","RecordKind","RecordId","Day","What","Reason","Amount","Record","Taken Back")");
    EXPECT_EQ(std::ranges::count_if(
                  runs, [](const std::string& line) { return line.starts_with("\"01/31/2027 "); }),
              posts - 1);
    EXPECT_TRUE(std::ranges::any_of(runs, [](const std::string& line) {
        return line.find("01/01/2027,\"Rent\",\"Rent due 01/01/2027: the lease's rent\",") !=
               std::string::npos;
    }));
}

TEST_F(Vestrelctl, RefusesToPreviewWhatCannotBe) {
    ASSERT_EQ(Run("init " + Books()).status, 0);
    const struct {
        const char* words;
        int status;
        const char* error;
    } cases[] = {
        {"preview", 2, "--until is required"},
        {"preview --until", 2, "--until"},
        {"preview --until 02/30/2027", 2, "'02/30/2027' is not a valid date"},
        {"--today 03/01/2027 preview --until 02/28/2027", 1,
         "02/28/2027 is before today, 03/01/2027"},
    };
    for (const auto& each : cases) {
        const Outcome outcome = Run(OnBooks() + each.words);
        EXPECT_EQ(outcome.status, each.status) << each.words;
        EXPECT_EQ(outcome.output, "") << each.words;
        EXPECT_NE(outcome.errors.find(each.error), std::string::npos) << outcome.errors;
    }
    EXPECT_EQ(LinesOf(Run(OnBooks() + "preview --until 12/31/2999").output).size(), 1U)
        << "empty books have nothing to come";
}

} // namespace

} // namespace tests
