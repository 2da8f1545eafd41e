#include "platform/system/ProgramHelp.h"

#include <algorithm>

#include <fmt/core.h>

#include "platform/system/Version.h"

namespace platform {

namespace {

constexpr std::size_t kTextColumn = 30;

/// Appends the name, then the text from a fixed column on; if the name is too long, the text is on
/// a line of its own.
void AppendEntry(std::string& help, const HelpEntry& entry) {
    std::string line = fmt::format("  {}", entry.name);
    if (line.size() + 2 > kTextColumn) {
        help += line + '\n';
        line.clear();
    }
    for (std::string_view rest = entry.text; !rest.empty();) {
        const std::string_view part = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), part.size() + 1));
        help += fmt::format("{:<{}}{}\n", line, kTextColumn, part);
        line.clear();
    }
}

} // namespace

std::string HelpText(const ProgramHelp& help) {
    std::string text = fmt::format("{}\nUsage: {} {}\n", help.summary, help.name, help.usage);
    for (const HelpSection& section : help.sections) {
        text += fmt::format("\n{}:\n", section.title);
        for (const HelpEntry& entry : section.entries)
            AppendEntry(text, entry);
    }
    return text;
}

bool AnswerIfAsked(const ProgramHelp& help, std::span<char* const> words) {
    if (PrintVersionIfAsked(help.name, words)) return true;
    const auto asks = [](std::string_view word) { return word == "--help" || word == "-h"; };
    if (!std::ranges::any_of(words, asks)) return false;
    fmt::print("{}", HelpText(help));
    return true;
}

} // namespace platform
