#include "shell/CommandLine.h"

#include <string_view>

namespace shell {

CommandLine ReadCommandLine(std::span<const char* const> words) {
    CommandLine line;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word == "--read-only") {
            line.readOnly = true;
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
