#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

namespace {

std::string Enclose(std::string_view text, char mark) {
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted += mark;
    for (const char c : text) {
        if (c == mark) quoted += mark;
        quoted += c;
    }
    quoted += mark;
    return quoted;
}

} // namespace

std::string QuoteText(std::string_view text) {
    return Enclose(text, '\'');
}

std::string QuoteName(std::string_view name) {
    return "[" + std::string(name) + "]";
}

std::string QuoteDate(Date date) {
    return "#" + date.ToText() + "#";
}

std::string EngineText(std::string_view text) {
    return Enclose(text, '\'');
}

std::string EngineName(std::string_view name) {
    return Enclose(name, '"');
}

} // namespace platform::dialect
