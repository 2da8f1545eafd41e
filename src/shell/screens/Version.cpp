#include "shell/screens/Version.h"

namespace shell::screens {

QString VersionText() {
    return QStringLiteral(" v" VESTREL_VERSION);
}

} // namespace shell::screens
