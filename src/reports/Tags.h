#pragma once

#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace reports {

/// Replaces every occurrence of `tag` ("%DATE%") in `text` without regard to case. What was put in
/// is not looked at again.
void ReplaceTag(std::string& text, std::string_view tag, std::string_view value);

/// Replaces the tags of today's date and time and of the company.
void ExpandSystemTags(std::string& text);

/// A value as it takes the place of a tag: its text, empty for a null.
std::string TextOf(const platform::Value& value);

} // namespace reports
