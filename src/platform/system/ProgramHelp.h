#pragma once

#include <span>
#include <string>
#include <string_view>

namespace platform {

/// An entry of a program's help: an option or a file, and what it is for. A text of several lines
/// keeps its line breaks.
struct HelpEntry {
    std::string_view name;
    std::string_view text;
};

/// The options that every program has; they come first in its help.
inline constexpr HelpEntry kHelpOption{"-h,--help", "Print this help and exit"};
inline constexpr HelpEntry kVersionOption{"--version", "Print the version and exit"};

/// A further section of the help, such as "Files".
struct HelpSection {
    std::string_view title;
    std::span<const HelpEntry> entries;
};

/// Describes a program: its `--help`, and the manual page that is made from it.
struct ProgramHelp {
    std::string_view name;
    std::string_view summary; ///< one sentence
    std::string_view usage;   ///< the command line after the name
    std::span<const HelpSection> sections;
};

/// Returns the help as it is printed.
std::string HelpText(const ProgramHelp& help);

/// Prints the help or the version to standard output and returns true if "--help", "-h" or
/// "--version" is among the words of a command line. Needs no screen.
bool AnswerIfAsked(const ProgramHelp& help, std::span<char* const> words);

} // namespace platform
