#pragma once

#include "platform/printing/PrintSurface.h"

namespace reports {

/// Gives a surface the named styles of reports; "Default" is the surface as it stands.
void CreateStyles(platform::PrintSurface& page);

} // namespace reports
