#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/registry/Registry.h"

namespace core {

// The machine's settings, kept in the registry. A setting that can't be read counts as missing; a
// write that fails returns false and changes nothing.

/// Returns the text up to its first zero byte; `otherwise` if there is no text of that name.
std::string GetRegString(std::string_view key, std::string_view name, std::string_view otherwise);
bool SetRegString(std::string_view key, std::string_view name, std::string_view value);
/// Writes several texts in one step.
bool SetRegStrings(std::span<const platform::RegistryText> texts);

/// Returns true only for the text "True" in exactly this spelling; `otherwise` if it is missing or
/// empty.
bool GetRegFlag(std::string_view key, std::string_view name, bool otherwise);
/// Stores a flag as the text "True" or "False".
bool SetRegFlag(std::string_view key, std::string_view name, bool value);

/// Returns the number of that name; `otherwise` if there is none.
std::int32_t GetRegNumber(std::string_view key, std::string_view name, std::int32_t otherwise);
bool SetRegNumber(std::string_view key, std::string_view name, std::int32_t value);

} // namespace core
