#pragma once

#include <QIcon>
#include <QString>

namespace platform::qt {

/// The picture `name` of share/icons, at any size. What is drawn in "currentColor" takes the
/// palette's text colour when it is painted, so it suits light and dark windows alike. A null icon
/// when there is no such picture.
QIcon LoadIcon(const QString& name);

} // namespace platform::qt
