#pragma once

#include <string>
#include <string_view>

namespace platform::dialect {

// Texts and names in the engine's own SQL, appended in the marks that it asks for.
void AppendEngineText(std::string& sql, std::string_view text);
void AppendEngineName(std::string& sql, std::string_view name);

/// Compares texts without regard to case; RegisterRuntimeFunctions adds it.
inline constexpr std::string_view kTextCollation = " COLLATE VESTREL_TEXT";

} // namespace platform::dialect
