#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace support {

// Case files hold tables of input and expected output. A table is a line with its name in brackets,
// a line with the names of its columns, and a line for each case; empty lines and lines that start
// with '#' are skipped.
//
//   [sums]
//   sum     | result
//   200+10% | 220
//   " 1"    | 1
//   ""      | Enter a sum first.
//
// A bar with a blank on either side separates two cells. A cell in quotes keeps its blanks and
// knows \n, \t, \r and \\; any other cell is the characters that it shows.

/// One line of a table.
class Case {
  public:
    Case(const std::vector<std::string>& columns, std::string line) : columns_(&columns) {
        line += " | ";
        for (std::size_t end = 0; (end = line.find(" | ")) != std::string::npos;
             line.erase(0, end + 3))
            cells_.push_back(TextOf(line.substr(0, end)));
        if (cells_.size() < columns.size()) throw std::runtime_error("a cell is missing");
    }

    /// The text of a cell. Throws std::runtime_error if there is no such column.
    const std::string& operator[](std::string_view column) const {
        for (std::size_t i = 0; i < columns_->size(); ++i) {
            if ((*columns_)[i] == column) return cells_[i];
        }
        throw std::runtime_error("no column " + std::string(column));
    }

    /// A cell as a number, written without separators. Throws std::runtime_error if it is none.
    template <typename Type>
    Type Number(std::string_view column) const {
        const std::string& text = (*this)[column];
        Type number{};
        const char* const end = text.data() + text.size();
        const auto read = std::from_chars(text.data(), end, number);
        if (read.ec == std::errc() && read.ptr == end) return number;
        throw std::runtime_error("'" + text + "' is not a number");
    }

    /// A cell as a code, written as its number. Throws as above.
    template <typename Code>
    requires std::is_enum_v<Code> Code Number(std::string_view column)
    const { return static_cast<Code>(Number<std::underlying_type_t<Code>>(column)); }

    /// Whether a cell is "yes". Throws std::runtime_error if it is not "no" either.
    bool IsYes(std::string_view column) const {
        const std::string& text = (*this)[column];
        if (text == "yes" || text == "no") return text == "yes";
        throw std::runtime_error("'" + text + "' is not yes or no");
    }

    const std::vector<std::string>& Cells() const { return cells_; }

  private:
    static std::string TextOf(std::string cell) {
        cell.erase(0, cell.find_first_not_of(' '));
        cell.erase(cell.find_last_not_of(' ') + 1);
        if (cell.size() < 2 || cell.front() != '"' || cell.back() != '"') return cell;
        std::string text;
        for (std::size_t i = 1; i + 1 < cell.size(); ++i) {
            const std::size_t escape = cell[i] == '\\' ? std::string("ntr").find(cell[i + 1]) : 3;
            if (cell[i] == '\\') ++i;
            text += escape < 3 ? "\n\t\r"[escape] : cell[i];
        }
        return text;
    }

    const std::vector<std::string>* columns_;
    std::vector<std::string> cells_;
};

/// Calls `check` with each case of a table, whose line is named in what fails. Throws
/// std::runtime_error if there is no such table or it has no case.
template <typename Check>
void ForEachCase(const std::filesystem::path& file, std::string_view table, Check check) {
    std::ifstream input(file);
    std::vector<std::string> columns;
    bool isInTable = false;
    bool hasCase = false;
    std::string line;
    for (int number = 1; std::getline(input, line); ++number) {
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with('[') && line.ends_with(']')) {
            isInTable = line == "[" + std::string(table) + "]";
        } else if (isInTable && columns.empty()) {
            columns = Case(columns, line).Cells();
        } else if (isInTable) {
            const testing::ScopedTrace trace(file.c_str(), number, line);
            check(Case(columns, line));
            hasCase = true;
        }
    }
    if (!hasCase) throw std::runtime_error(file.string() + ": no cases of " + std::string(table));
}

} // namespace support
