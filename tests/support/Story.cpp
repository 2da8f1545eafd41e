#include "support/Story.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "platform/values/Text.h"

namespace support {

namespace fs = std::filesystem;

namespace {

using platform::Trim;
using Lines = std::vector<std::string>;

constexpr std::size_t kIndent = 2;
constexpr std::string_view kArrow = "->";

/// The lines of one story: its sentence, its parts, and the rows of `each`.
struct Draft {
    std::string proves;
    Lines lines;
    Lines rows;
};

std::vector<Draft> ReadDrafts(const fs::path& file) {
    std::vector<Draft> drafts(1);
    std::ifstream input(file);
    bool isTable = false;
    for (std::string line; std::getline(input, line);) {
        if (Trim(line).empty()) continue;
        if (line.front() == '#') {
            if (!drafts.back().lines.empty()) drafts.emplace_back();
            isTable = false;
            drafts.back().proves += line.substr(1);
            continue;
        }
        if (line.front() != ' ') isTable = line == "each";
        if (line == "each" || Trim(line).front() == '#') continue;
        (isTable ? drafts.back().rows : drafts.back().lines).push_back(line);
    }
    return drafts;
}

/// The cells of a row, separated by bars with spaces around them.
Lines Cells(const std::string& row) {
    Lines cells;
    std::string rest = " " + row + " ";
    for (std::size_t bar = 0; (bar = rest.find(" | ")) != std::string::npos;) {
        cells.emplace_back(Trim(rest.substr(0, bar)));
        rest.erase(0, bar + 2);
    }
    cells.emplace_back(Trim(rest));
    return cells;
}

void Replace(std::string& line, const std::string& name, const std::string& value) {
    const std::string mark = "<" + name + ">";
    for (std::size_t at = 0; (at = line.find(mark, at)) != std::string::npos; at += value.size())
        line.replace(at, mark.size(), value);
}

/// The story's lines for each row of its table; its lines as they are without a table.
std::vector<Lines> Cases(const Draft& draft) {
    if (draft.rows.empty()) return {draft.lines};
    const Lines names = Cells(draft.rows.front());
    std::vector<Lines> cases;
    for (std::size_t row = 1; row < draft.rows.size(); ++row) {
        const Lines cells = Cells(draft.rows[row]);
        if (cells.size() != names.size()) throw std::runtime_error("cells of: " + draft.rows[row]);
        Lines& lines = cases.emplace_back(draft.lines);
        for (std::string& line : lines) {
            for (std::size_t i = 0; i < names.size(); ++i)
                Replace(line, names[i], cells[i]);
        }
    }
    return cases;
}

void AddLine(StoryPart& part, const std::string& line) {
    const std::string text(Trim(line));
    const bool begins = line.find_first_not_of(' ') == kIndent;
    if (begins) part.lines.emplace_back();
    if (part.lines.empty()) throw std::runtime_error("nothing to continue: " + text);
    StoryLine& last = part.lines.back();
    const std::size_t arrow = text.starts_with(kArrow) ? 0 : text.find(" -> ");
    if (arrow != 0) {
        std::string& continued = last.answers.empty() ? last.text : last.answers.back();
        continued += (begins ? "" : " ") + text.substr(0, arrow);
    }
    if (arrow != std::string::npos) {
        const std::size_t answer = text.find(kArrow, arrow) + kArrow.size();
        last.answers.emplace_back(Trim(text.substr(answer)));
    }
}

std::vector<StoryPart> ReadParts(const Lines& lines) {
    std::vector<StoryPart> parts;
    for (const std::string& line : lines) {
        if (line.front() != ' ') {
            if (line != "given" && line != "when" && line != "then") {
                throw std::runtime_error("no such part: " + line);
            }
            parts.push_back({line, {}});
        } else if (parts.empty()) {
            throw std::runtime_error("line outside a part: " + line);
        } else {
            AddLine(parts.back(), line);
        }
    }
    return parts;
}

std::vector<Story> ReadFile(const fs::path& file) {
    std::string name = file.stem().string();
    std::ranges::replace(name, '-', '_');
    std::vector<Story> stories;
    for (const Draft& draft : ReadDrafts(file)) {
        for (const Lines& lines : Cases(draft))
            stories.push_back({name, draft.proves, ReadParts(lines)});
    }
    if (stories.size() > 1) {
        for (std::size_t i = 0; i < stories.size(); ++i)
            stories[i].name += "_" + std::to_string(i + 1);
    }
    return stories;
}

} // namespace

void PrintTo(const Story& story, std::ostream* out) {
    *out << story.proves;
}

std::vector<Story> ReadStories(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ".story") files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<Story> stories;
    for (const fs::path& file : files) {
        try {
            std::ranges::move(ReadFile(file), std::back_inserter(stories));
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(file.string() + ": " + error.what());
        }
    }
    return stories;
}

} // namespace support
