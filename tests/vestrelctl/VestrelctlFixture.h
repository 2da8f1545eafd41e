#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/TemporaryFolder.h"

namespace tests {

struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;
};

inline std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream input(file);
    return {std::istreambuf_iterator<char>(input), {}};
}

/// Runs the companion as a user at a terminal does, with a folder and a registry of its own.
class Vestrelctl : public testing::Test {
  protected:
    /// Runs the companion with these words of a shell; `input` is its standard input.
    Outcome Run(const std::string& words, const std::string& input = {}) {
        std::ofstream(folder_ / "in") << input;
        const std::string at = folder_.Path().string();
        const std::string line = "XDG_CONFIG_HOME='" + at + "/config' " VESTRELCTL " " + words +
                                 " <'" + at + "/in' >'" + at + "/out' 2>'" + at + "/err'";
        const int status = std::system(line.c_str());
        return {WEXITSTATUS(status), ReadFile(folder_ / "out"), ReadFile(folder_ / "err")};
    }

    std::string Books() const { return "'" + (folder_ / "books").string() + "'"; }
    std::string OnBooks() const { return "--data " + Books() + " "; }

    /// The rows of a select, without the line of names.
    std::string Ask(const std::string& select) {
        const std::string rows = Run(OnBooks() + "sql \"" + select + "\"").output;
        return rows.substr(rows.find('\n') + 1);
    }

    support::TemporaryFolder folder_;
};

} // namespace tests
