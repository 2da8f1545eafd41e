#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/registry/Registry.h"

namespace core {

// The machine's settings, kept in the registry. A read that fails is a value that isn't there; a
// write that fails returns false and changes nothing.

/// The text up to its first character 0; `otherwise` when there is no text of that name.
std::string GetRegString(std::string_view key, std::string_view name, std::string_view otherwise);
bool SetRegString(std::string_view key, std::string_view name, std::string_view value);
/// Writes several texts in one step.
bool SetRegStrings(std::span<const platform::RegistryText> texts);

/// True only for the text "True", letter by letter; `otherwise` when it is missing or empty.
bool GetRegFlag(std::string_view key, std::string_view name, bool otherwise);
/// Kept as the text "True" or "False".
bool SetRegFlag(std::string_view key, std::string_view name, bool value);

/// `otherwise` when there is no number of that name.
std::int32_t GetRegNumber(std::string_view key, std::string_view name, std::int32_t otherwise);
bool SetRegNumber(std::string_view key, std::string_view name, std::int32_t value);

} // namespace core
