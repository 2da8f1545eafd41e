#pragma once

#include <QVariant>
#include <QWidget>
#include <optional>

#include "platform/values/Value.h"

namespace core::binding {

/// Shows a value that isn't null in a control, in the form that the sigil asks for. A control that
/// can't show it stays as it is.
void ShowValue(QWidget& control, char sigil, const platform::Value& value);

/// What the control holds, by its sigil; nothing for a label, for a control that has no value of
/// that sort, and for an option button that isn't the chosen one.
std::optional<platform::Value> ReadValue(const QWidget& control, char sigil);

/// Lets a list offer a choice that isn't among its rows: a record by its name, any other code or
/// text as it is. Nothing happens for other controls, for a blank choice and for one that is
/// offered.
void OfferChoice(QWidget& control, char sigil, const platform::Value& value);

/// Everything that a control holds, whether it can be read as a value or not, and back.
QVariant ContentOf(const QWidget& control);
void ShowContent(QWidget& control, const QVariant& content);

} // namespace core::binding
