#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mortgages {

// Lists of numbers as the books keep them in a text: "0,0,250.5".

/// The numbers parted by commas, each in its shortest form; empty for none.
std::string JoinDoubleList(const std::vector<double>& numbers);

/// Reads the pieces between commas, each by the number that it begins with (0 where it begins with
/// none), and answers how many there are; a blank text has none.
std::size_t SplitDoubleList(std::string_view text, std::vector<double>& numbers);

} // namespace mortgages
