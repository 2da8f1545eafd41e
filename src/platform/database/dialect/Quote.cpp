#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

namespace {

void AppendEnclosed(std::string& out, std::string_view text, char mark) {
    out += mark;
    for (const char c : text) {
        if (c == mark) out += mark;
        out += c;
    }
    out += mark;
}

} // namespace

std::string QuoteText(std::string_view text) {
    std::string quoted;
    AppendEnclosed(quoted, text, '\'');
    return quoted;
}

std::string QuoteName(std::string_view name) {
    return "[" + std::string(name) + "]";
}

std::string QuoteDate(Date date) {
    return "#" + date.ToText() + "#";
}

void AppendEngineText(std::string& sql, std::string_view text) {
    AppendEnclosed(sql, text, '\'');
}

void AppendEngineName(std::string& sql, std::string_view name) {
    AppendEnclosed(sql, name, '"');
}

} // namespace platform::dialect
