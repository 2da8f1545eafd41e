#pragma once

#include <iosfwd>
#include <string_view>

namespace core {

/// Adds a line to the diagnostic log, unless it is off (null). Lines of the normal course begin
/// with "{ } ", reports of a fault with "{*} ". A failure to write is ignored.
void WriteDiag(std::ostream* diagFile, std::string_view line);

} // namespace core
