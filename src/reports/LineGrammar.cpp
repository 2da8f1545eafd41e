#include "reports/LineGrammar.h"

#include <exception>

#include "platform/system/Paths.h"
#include "platform/values/Text.h"
#include "reports/Encoding.h"

namespace reports {

namespace {

/// None of our keys is longer.
constexpr std::size_t kLongestKey = 40;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

} // namespace

bool DefinitionLine::Opens(std::string_view section) const {
    const std::string_view written = key;
    return value.empty() && written.size() == section.size() + 2 && written.starts_with('[') &&
           written.ends_with(']') && written.substr(1, section.size()) == section;
}

std::string_view LineReader::TakeLine() {
    ++number_;
    const auto end = rest_.find_first_of("\r\n");
    const std::string_view line = rest_.substr(0, end);
    if (end == std::string_view::npos) {
        rest_ = {};
        return line;
    }
    const bool both = rest_.substr(end, 2) == "\r\n";
    rest_.remove_prefix(end + (both ? 2 : 1));
    return line;
}

std::optional<DefinitionLine> LineReader::Next() {
    while (!rest_.empty()) {
        const std::string_view line = TakeLine();
        if (line.empty() || line.front() == '#') continue;

        DefinitionLine read;
        read.number = number_;
        const auto equals = line.find('=');
        read.name = line.substr(0, equals);
        if (equals != std::string_view::npos) read.value = line.substr(equals + 1);
        if (blanks_ == Blanks::Trim || equals == std::string_view::npos) {
            read.name = platform::Trim(read.name);
            read.value = platform::Trim(read.value);
        }
        if (read.name.size() <= kLongestKey) read.key = platform::ToUpper(read.name);
        return read;
    }
    return std::nullopt;
}

std::optional<std::string> ReadDefinition(const std::filesystem::path& file) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(file, failure)) return std::nullopt;
    try {
        std::string text = platform::ReadWholeFile(file);
        if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
        return IsUtf8(text) ? text : FromWindows1252(text);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace reports
