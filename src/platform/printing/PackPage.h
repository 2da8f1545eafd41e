#pragma once

#include <string>
#include <string_view>

#include "platform/printing/PrintedPage.h"

namespace platform {

/// A page in a tenth of its size, to be held: each item as its differences from the one before.
std::string PackPage(const PrintedPage& page);
/// The page that was packed.
PrintedPage UnpackPage(std::string_view packed);

} // namespace platform
