#include "core/DiagLog.h"

#include <ostream>

namespace core {

void WriteDiag(std::ostream* diagFile, std::string_view line) {
    if (diagFile == nullptr) return;
    try {
        *diagFile << line << '\n';
    } catch (const std::ios_base::failure&) {
        // The log must not stop the work it describes.
    }
}

} // namespace core
