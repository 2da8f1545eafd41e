#include "core/screens/Version.h"

namespace core::screens {

QString VersionText() {
    return QStringLiteral(" v" VESTREL_VERSION);
}

} // namespace core::screens
