#pragma once

#include <string>
#include <string_view>

#include "platform/printing/PageSetup.h"

namespace reports {

// The report viewer's settings on this machine.

/// Returns whether an exported file is opened afterwards.
bool ReadOpenExport();
void SaveOpenExport(bool open);

/// Returns the paper and the margins; the orientation is the report's.
platform::PageSetup ReadPageSetup();
/// Saves the margins and the orientation, and the paper unless it is the machine's default.
void SavePageSetup(const platform::PageSetup& setup);

/// Returns the folder of the last export with its last separator; empty before the first.
std::string LastSaveDir();
void SaveLastSaveDir(std::string_view folder);

} // namespace reports
