#pragma once

#include <string>
#include <string_view>

namespace platform::dialect {

// Return text and names quoted for the engine's own SQL.
std::string EngineText(std::string_view text);
std::string EngineName(std::string_view name);

/// Compares text ignoring case; RegisterRuntimeFunctions adds it.
inline constexpr std::string_view kTextCollation = " COLLATE VESTREL_TEXT";

} // namespace platform::dialect
