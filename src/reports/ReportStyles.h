#pragma once

#include "platform/printing/PrintSurface.h"

namespace reports {

/// Gives a surface the named styles of reports; "Default" is the surface's current style.
void CreateStyles(platform::PrintSurface& page);

} // namespace reports
