#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mortgages {

// Lists of numbers as they are stored in a text field: "0,0,250.5".

/// Returns the numbers separated by commas, each in its shortest form; an empty string for an empty
/// list.
std::string JoinDoubleList(const std::vector<double>& numbers);

/// Reads the items between commas, each as the number at its start (0 if there is none), and
/// returns their count; 0 for blank text.
std::size_t SplitDoubleList(std::string_view text, std::vector<double>& numbers);

} // namespace mortgages
