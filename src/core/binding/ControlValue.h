#pragma once

#include <QVariant>
#include <QWidget>
#include <optional>

#include "platform/values/Value.h"

namespace core::binding {

/// Shows a non-null value in a control, in the form that the sigil calls for. A control that can't
/// show it stays unchanged.
void ShowValue(QWidget& control, char sigil, const platform::Value& value);

/// Returns the control's value by its sigil; nothing for a label, for a control that has no value
/// of that type, and for an option button that isn't chosen.
std::optional<platform::Value> ReadValue(const QWidget& control, char sigil);

/// Adds a choice that a list doesn't offer: a record by its name, any other code or text as it is.
/// Does nothing for other controls, a blank choice or one that is offered.
void OfferChoice(QWidget& control, char sigil, const platform::Value& value);

/// Returns everything a control holds, whether or not it converts to a value, and restores it.
QVariant ContentOf(const QWidget& control);
void ShowContent(QWidget& control, const QVariant& content);

} // namespace core::binding
