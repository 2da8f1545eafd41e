#include "shell/CommandLine.h"

#include <array>
#include <string_view>

namespace shell {

namespace {

constexpr std::array kOptions = {
    platform::kHelpOption,
    platform::kVersionOption,
    platform::HelpEntry{"--data DIR", "Open the books in this directory, not the registered ones"},
    platform::HelpEntry{"--today MM/DD/YYYY", "Use this day as today"},
    platform::HelpEntry{"--read-only", "Change nothing: look at the books only"},
    platform::HelpEntry{"/altdb=NAME", "Open the books registered under this name"},
    platform::HelpEntry{"/welcome", "Welcome a user who has no books yet"},
    platform::HelpEntry{"/expert", "Show the expert commands"},
};

constexpr std::array kStatus = {
    platform::HelpEntry{"0", "The program was closed, or is running already"},
    platform::HelpEntry{"1", "The books can't be opened"},
    platform::HelpEntry{"2", "The command line is wrong"},
};

constexpr std::array kFiles = {
    platform::HelpEntry{"~/.config/Vestrel/registry.json",
                        "The settings, and where the books are (below $XDG_CONFIG_HOME, if set)"},
    platform::HelpEntry{"~/.local/share/Vestrel/",
                        "Reports, letter templates and new books, unless you choose another\n"
                        "folder (below $XDG_DATA_HOME, if set). A copy of the program that is\n"
                        "not installed keeps them in its own folder."},
    platform::HelpEntry{"Vestrel.mdb", "The books: an SQLite file in the directory of the books"},
};

constexpr std::array kSections = {
    platform::HelpSection{"Options", kOptions},
    platform::HelpSection{"Exit status", kStatus},
    platform::HelpSection{"Files", kFiles},
};

constexpr platform::ProgramHelp kHelp = {
    .name = "vestrel",
    .summary = "Keeps the books of rental property.",
    .usage = "[OPTIONS]",
    .sections = kSections,
};

} // namespace

const platform::ProgramHelp& WindowHelp() {
    return kHelp;
}

CommandLine ReadCommandLine(std::span<const char* const> words) {
    CommandLine line;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word == "--read-only") {
            line.readOnly = true;
            continue;
        }
        if (word == "/welcome") {
            line.welcomes = true;
            continue;
        }
        if (word != "--data" && word != "--today") {
            if (!line.rest.empty()) line.rest += ' ';
            line.rest += word;
            continue;
        }
        if (++i == words.size()) {
            line.fault = std::string(word) + " needs a value";
            return line;
        }
        const std::string_view value = words[i];
        if (word == "--data") {
            line.data = value;
            continue;
        }
        line.today = platform::Date::TryParse(value);
        if (!line.today) {
            line.fault = "'" + std::string(value) + "' is not a valid date (mm/dd/yyyy)";
            return line;
        }
    }
    return line;
}

} // namespace shell
