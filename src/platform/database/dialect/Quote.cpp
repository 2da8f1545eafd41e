#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

namespace {

std::string Enclosed(std::string_view text, char mark) {
    std::string enclosed(1, mark);
    for (const char c : text) {
        if (c == mark) enclosed += mark;
        enclosed += c;
    }
    return enclosed + mark;
}

} // namespace

std::string QuoteText(std::string_view text) {
    return Enclosed(text, '\'');
}

std::string QuoteName(std::string_view name) {
    return "[" + std::string(name) + "]";
}

std::string QuoteDate(Date date) {
    return "#" + date.ToText() + "#";
}

std::string EngineText(std::string_view text) {
    return Enclosed(text, '\'');
}

std::string EngineName(std::string_view name) {
    return Enclosed(name, '"');
}

} // namespace platform::dialect
