#pragma once

class QWidget;

namespace core::binding {

/// Enables or disables each control inside `container`, also those in frames and groups inside it;
/// the container itself stays as it is.
void EnableContainer(QWidget& container, bool enabled);

} // namespace core::binding
