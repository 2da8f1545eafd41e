#pragma once

#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace reports {

/// Replaces every occurrence of `tag` ("%DATE%") in `text`, ignoring case. Tags in the value itself
/// are not replaced.
void ReplaceTag(std::string& text, std::string_view tag, std::string_view value);

/// Replaces the tags of today's date and time and of the company.
void ExpandSystemTags(std::string& text);

/// Returns the text of a tag's value; empty for a null.
std::string TextOf(const platform::Value& value);

} // namespace reports
