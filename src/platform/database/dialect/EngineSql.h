#pragma once

#include <string>
#include <string_view>

namespace platform::dialect {

// Texts and names in the engine's own SQL, in the marks that it asks for.
std::string EngineText(std::string_view text);
std::string EngineName(std::string_view name);

/// Compares texts without regard to case; RegisterRuntimeFunctions adds it.
inline constexpr std::string_view kTextCollation = " COLLATE VESTREL_TEXT";

} // namespace platform::dialect
