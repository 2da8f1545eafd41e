#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/database/TextIndex.h"

namespace search {

// Amounts and days are written in several ways. The index holds them in one form, made of letters
// and digits only: "1,050.00" as "1050" and "1050p00", "11/05/2026" as "11d05d2026" and "2026m11".

/// Returns a text as the index holds it.
std::string IndexWords(std::string_view text);

/// Whether a number that was typed is only that number, or the beginning of longer ones as well.
enum class Numbers { Whole, Beginning };

/// Returns the words to look for; none if there is nothing to look for. Only the first 32 words
/// count.
std::vector<platform::SearchWord> QueryWords(std::string_view text, Numbers numbers);

/// Returns whether the text has a number, so that it matters how numbers are taken.
bool HasNumber(std::string_view text);

} // namespace search
