#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Token.h"
#include "platform/values/Errors.h"

namespace platform::dialect {

void ThrowFault(std::string_view statement, std::size_t position, std::string_view message) {
    const std::string_view before = statement.substr(0, position);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::string_view inLine = before.substr(before.rfind('\n') + 1);
    const auto column = std::count_if(inLine.begin(), inLine.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; // no further byte of a character
    });
    throw DialectError(fmt::format("{} (line {}, column {})", message, line, column + 1), position);
}

} // namespace platform::dialect
