// Definitions and what they show. A file sections/NAME.flow has blocks, separated by empty lines,
// of which the first line says what they are; lines that start with '#' between them are comments.
//
//   books               statements, one a line, that the books of the file are filled with
//   record 5            the record, year or detail that is chosen from here on
//   before, after       lines before and after each definition from here on
//   report, fault       the lines of a definition, "----", and the flow that it shows, or the fault
//                       that ends its run
//
// An ellipsis stands for any text, of several lines too; \n is a new line in a line.

#include <fstream>
#include <sstream>

#include "core/Configuration.h"
#include "reports/ReportsFixture.h"
#include "support/Patterns.h"

namespace {

namespace fs = std::filesystem;

struct Block {
    int line = 0;
    std::string kind;
    std::string choice;
    std::string text;
    std::string expected;
};

std::vector<Block> BlocksOf(const fs::path& file) {
    std::vector<Block> blocks;
    std::ifstream input(file);
    bool isOpen = false;
    bool isExpected = false;
    std::string line;
    for (int number = 1; std::getline(input, line); ++number) {
        if (line.empty()) {
            isOpen = false;
        } else if (isOpen && line == "----") {
            isExpected = true;
        } else if (isOpen) {
            (isExpected ? blocks.back().expected : blocks.back().text) += line + "\n";
        } else if (line.front() != '#') {
            const std::size_t end = std::min(line.find(' '), line.size());
            blocks.push_back({.line = number,
                              .kind = line.substr(0, end),
                              .choice = line.substr(std::min(end + 1, line.size())),
                              .text = {},
                              .expected = {}});
            isOpen = true;
            isExpected = false;
        }
    }
    return blocks;
}

class Sections : public tests::Reports, public testing::WithParamInterface<fs::path> {
  protected:
    /// The lines of a flow without the blanks at their ends.
    std::string FlowOf(const std::string& definition) {
        std::string text;
        for (std::string line : Lines(definition)) {
            for (std::size_t at = 0; (at = line.find('\n', at)) != std::string::npos;)
                line.replace(at, 1, "\\n");
            line.erase(line.find_last_not_of(' ') + 1);
            text += line + "\n";
        }
        return text;
    }
};

TEST_P(Sections, ShowWhatIsWritten) {
    core::Config().CompanyName = "Acme";
    std::string before;
    std::string after;
    int checked = 0;
    for (const Block& block : BlocksOf(GetParam())) {
        const testing::ScopedTrace trace(GetParam().c_str(), block.line, block.kind);
        const std::string definition = std::string(before).append(block.text).append(after);
        if (block.kind == "books") {
            std::istringstream statements(block.text);
            for (std::string statement; std::getline(statements, statement);)
                CoreBooks::Run(statement);
        } else if (block.kind == "record") {
            report.SelectedId = std::stoi(block.choice);
        } else if (block.kind == "year") {
            report.SelectedYear = block.choice;
        } else if (block.kind == "detail") {
            EXPECT_EQ(block.choice, "summary");
            report.DetailLevel = reports::Detail::Summary;
        } else if (block.kind == "before" || block.kind == "after") {
            (block.kind == "before" ? before : after) = block.text;
        } else {
            const bool isFault = block.kind == "fault";
            EXPECT_TRUE(isFault || block.kind == "report") << "there is no such block";
            const std::string shown = isFault ? Fault(definition) + "\n" : FlowOf(definition);
            EXPECT_TRUE(support::Matches(shown, block.expected)) << shown;
            ++checked;
        }
    }
    EXPECT_GT(checked, 0);
}

std::vector<fs::path> Files() {
    const fs::directory_iterator files(VESTREL_TEST_DATA "/sections");
    return {begin(files), end(files)};
}

INSTANTIATE_TEST_SUITE_P(Files, Sections, testing::ValuesIn(Files()),
                         [](const auto& file) { return file.param.stem().string(); });

} // namespace
