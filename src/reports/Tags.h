#pragma once

#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace reports {

/// Replaces every occurrence of `tag` ("%DATE%") in `text` without regard to case. Tags in the
/// value itself are not replaced.
void ReplaceTag(std::string& text, std::string_view tag, std::string_view value);

/// Replaces the tags of today's date and time and of the company.
void ExpandSystemTags(std::string& text);

/// The text that a value puts in the place of a tag; empty for a null.
std::string TextOf(const platform::Value& value);

} // namespace reports
