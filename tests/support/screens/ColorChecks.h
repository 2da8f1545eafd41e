#pragma once

#include <QWidget>
#include <string>
#include <vector>

namespace support {

/// Returns the cells of a window's lists whose colour says what nothing else does: a coloured cell
/// without text and picture, and a text that has one colour here and another there in the same
/// column. Rows that are tinted as a whole only guide the eye.
std::vector<std::string> ColorFaults(const QWidget& window);

} // namespace support
