#pragma once

#include <functional>

class QObject;
class QWidget;

namespace core::binding {

/// Sets up what all forms share once their controls exist: keys are filtered by tag, numbers are
/// right-aligned, an editable list doesn't add typed text to itself, and each label gives its
/// control its accessible name.
void WireControls(QWidget& form);

/// Calls `changed` whenever a control of `form` changes, whether by the user or by code. Controls
/// with the property "noDirty" hold nothing that is saved and are left out.
void ConnectChanges(QWidget& form, QObject& context, const std::function<void()>& changed);

} // namespace core::binding
