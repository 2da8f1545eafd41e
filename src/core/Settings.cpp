#include "core/Settings.h"

namespace core {

std::string GetRegString(std::string_view key, std::string_view name, std::string_view otherwise) {
    const auto text = platform::TheRegistry().ReadText(key, name);
    if (!text) return std::string(otherwise);
    return text->substr(0, text->find('\0'));
}

bool SetRegString(std::string_view key, std::string_view name, std::string_view value) {
    return platform::TheRegistry().WriteText(key, name, value);
}

bool SetRegStrings(std::span<const platform::RegistryText> texts) {
    return platform::TheRegistry().WriteTexts(texts);
}

bool GetRegFlag(std::string_view key, std::string_view name, bool otherwise) {
    const std::string text = GetRegString(key, name, "");
    return text.empty() ? otherwise : text == "True";
}

bool SetRegFlag(std::string_view key, std::string_view name, bool value) {
    return SetRegString(key, name, value ? "True" : "False");
}

std::int32_t GetRegNumber(std::string_view key, std::string_view name, std::int32_t otherwise) {
    return platform::TheRegistry().ReadNumber(key, name).value_or(otherwise);
}

bool SetRegNumber(std::string_view key, std::string_view name, std::int32_t value) {
    return platform::TheRegistry().WriteNumber(key, name, value);
}

} // namespace core
