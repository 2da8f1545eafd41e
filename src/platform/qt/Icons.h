#pragma once

#include <QIcon>
#include <QString>

namespace platform::qt {

/// Returns the picture `name` of share/icons, for any size. "currentColor" in it becomes the
/// palette's text colour when it is painted, which suits light and dark windows. Returns a null
/// icon if there is no such picture.
QIcon LoadIcon(const QString& name);

} // namespace platform::qt
