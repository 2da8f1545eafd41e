#include "support/StatementFile.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace support {

namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

constexpr const char* kSeparator = "----";
constexpr const char* kOpen = "...";

[[noreturn]] void Fail(const fs::path& file, int line, const std::string& what) {
    throw std::runtime_error(file.string() + ":" + std::to_string(line) + ": " + what);
}

std::string Join(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        if (!text.empty()) text += '\n';
        text += line;
    }
    return text;
}

/// The text between the separators, without the head.
std::vector<Lines> SectionsOf(const Lines& block) {
    std::vector<Lines> sections(1);
    for (std::size_t i = 1; i < block.size(); ++i) {
        if (block[i] == kSeparator) {
            sections.emplace_back();
        } else {
            sections.back().push_back(block[i]);
        }
    }
    return sections;
}

ExpectedQuery MakeQuery(const Lines& statement, const Lines& result) {
    ExpectedQuery query;
    query.statement = Join(statement);
    std::size_t i = 0;
    do {
        query.columns += result[i];
    } while (result[i++].ends_with(',') && i < result.size());
    query.rows.assign(result.begin() + static_cast<std::ptrdiff_t>(i), result.end());
    query.anyRows = query.rows == Lines{kOpen};
    if (query.anyRows) query.rows.clear();
    return query;
}

void ReadHead(const std::string& head, StatementBlock& block) {
    std::istringstream words(head);
    std::string kind;
    std::string word;
    words >> kind;
    if (kind == "query") {
        block.kind = BlockKind::Query;
    } else if (kind == "run") {
        block.kind = BlockKind::Run;
    } else if (kind == "error") {
        block.kind = BlockKind::Error;
    } else {
        Fail(block.file, block.line, "a block starts with query, run or error");
    }
    while (words >> word) {
        if (word == "keep" && block.kind == BlockKind::Run) {
            block.keep = true;
        } else if (block.name.empty()) {
            block.name = word;
        } else {
            Fail(block.file, block.line, "more than one name");
        }
    }
}

StatementBlock MakeBlock(const fs::path& file, int line, const Lines& lines) {
    StatementBlock block;
    block.file = file;
    block.line = line;
    ReadHead(lines.front(), block);

    const std::vector<Lines> sections = SectionsOf(lines);
    const bool isRun = block.kind == BlockKind::Run;
    if (sections.size() != 2 && !(isRun && sections.size() == 4)) {
        Fail(file, line, "not a statement and what is expected of it");
    }
    if (std::ranges::any_of(sections, &Lines::empty)) Fail(file, line, "an empty part");

    block.statement = Join(sections[0]);
    if (block.kind == BlockKind::Query) {
        block.query = MakeQuery(sections[0], sections[1]);
        block.hasQuery = true;
        return block;
    }
    block.expected = Join(sections[1]);
    if (block.expected == kOpen) block.expected.clear();
    if (sections.size() == 4) {
        block.query = MakeQuery(sections[2], sections[3]);
        block.hasQuery = true;
    }
    return block;
}

} // namespace

std::vector<StatementBlock> ReadStatementFile(const fs::path& path) {
    std::ifstream input(path);
    if (!input) throw std::runtime_error(path.string() + ": can't be read");

    std::vector<StatementBlock> blocks;
    Lines lines;
    int start = 0;
    const auto endBlock = [&] {
        if (lines.empty()) return;
        blocks.push_back(MakeBlock(path, start, lines));
        blocks.back().number = static_cast<int>(blocks.size());
        lines.clear();
    };
    std::string line;
    for (int number = 1; std::getline(input, line); ++number) {
        if (line.empty()) {
            endBlock();
        } else if (!lines.empty() || line.front() != '#') {
            if (lines.empty()) start = number;
            lines.push_back(line);
        }
    }
    endBlock();
    return blocks;
}

std::vector<StatementBlock> ReadStatementFolder(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".test") files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<StatementBlock> all;
    for (const fs::path& file : files) {
        std::vector<StatementBlock> blocks = ReadStatementFile(file);
        std::ranges::move(blocks, std::back_inserter(all));
    }
    return all;
}

} // namespace support
