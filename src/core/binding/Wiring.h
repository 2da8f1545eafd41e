#pragma once

#include <functional>

class QObject;
class QWidget;

namespace core::binding {

/// What all forms have in common once their controls are made: keys are filtered by tag, numbers
/// stand at the right edge, a box that remembers no typed text doesn't grow by it, and what a label
/// says is the accessible name of its control.
void WireControls(QWidget& form);

/// Calls `changed` whenever a control of `form` changes, by the person or by code. A control with
/// the property "noDirty" holds nothing that is saved and isn't heard.
void ConnectChanges(QWidget& form, QObject& context, const std::function<void()>& changed);

} // namespace core::binding
