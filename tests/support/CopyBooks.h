#pragma once

#include <filesystem>

#include "core/Globals.h"
#include "support/TemporaryFolder.h"

namespace support {

/// Opens the process's session on books in `folder` as `make` makes and opens them: it does so once
/// in a process, and every test gets a copy.
template <class Make>
void CopyBooks(const std::filesystem::path& folder, Make make) {
    static const TemporaryFolder kept;
    if (std::filesystem::is_empty(kept.Path())) {
        make(kept / "made");
        core::App().Connection.Close();
    }
    std::filesystem::copy(kept / "made", folder);
    core::App().Connection.Open(folder / "Vestrel.mdb");
}

} // namespace support
