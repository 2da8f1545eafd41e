#pragma once

class QWidget;

namespace core::binding {

/// Makes each control inside `container` available or not, those in frames and groups inside it
/// too; the container itself stays as it is.
void EnableContainer(QWidget& container, bool enabled);

} // namespace core::binding
