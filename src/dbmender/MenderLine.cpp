#include "dbmender/MenderLine.h"

#include <array>

#include "core/RegistryKeys.h"
#include "platform/values/Text.h"

namespace dbmender {

using platform::EqualIgnoringCase;

namespace {

constexpr std::array kOptions = {
    platform::kHelpOption,
    platform::kVersionOption,
    platform::HelpEntry{"/nowarning", "Don't ask to close the other programs first"},
    platform::HelpEntry{"/welcome", "Welcome a user who has no books yet"},
    platform::HelpEntry{"/appstart=PROGRAM", "Start this program afterwards"},
    platform::HelpEntry{"/altdb=NAME", "Mend the books registered under this name"},
};

constexpr std::array kSections = {platform::HelpSection{"Options", kOptions}};

constexpr platform::ProgramHelp kHelp = {
    .name = "dbmender",
    .summary = "Finds, makes or restores the books that Vestrel can't open.",
    .usage = "[OPTIONS]",
    .sections = kSections,
};

} // namespace

const platform::ProgramHelp& MenderHelp() {
    return kHelp;
}

// Paths contain "/", so here a switch is a whole argument, with its value.
MenderLine ReadMenderLine(std::span<const char* const> words) {
    MenderLine line;
    line.dbName = core::kDefaultDatabase;
    for (const std::string_view word : words) {
        const std::size_t equals = word.find('=');
        const std::string_view name = word.substr(0, equals);
        const std::string value(equals == std::string_view::npos
                                    ? std::string_view()
                                    : platform::Trim(word.substr(equals + 1)));
        if (EqualIgnoringCase(name, "/nowarning")) line.warns = false;
        if (EqualIgnoringCase(name, "/welcome")) line.welcomes = true;
        if (EqualIgnoringCase(name, "/appstart")) line.appStart = value;
        if (EqualIgnoringCase(name, "/altdb") && !value.empty()) {
            line.dbName = platform::ToLower(value);
        }
    }
    return line;
}

} // namespace dbmender
