#include "shell/screens/Version.h"

#include "platform/qt/Text.h"
#include "platform/system/Version.h"

namespace shell::screens {

QString VersionText() {
    return QStringLiteral(" v") + platform::qt::ToScreen(platform::Version());
}

} // namespace shell::screens
