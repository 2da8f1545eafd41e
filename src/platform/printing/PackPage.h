#pragma once

#include <string>
#include <string_view>

#include "platform/printing/PrintedPage.h"

namespace platform {

/// Packs a page into about a tenth of its size, each item as its differences from the one before.
std::string PackPage(const PrintedPage& page);
/// Returns the page that was packed.
PrintedPage UnpackPage(std::string_view packed);

} // namespace platform
