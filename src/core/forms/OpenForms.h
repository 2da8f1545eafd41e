#pragma once

#include <cstdint>

namespace core::forms {

class Form;

// The open forms, in the order they were opened.

void AddOpenForm(Form& form);

/// Gives the focus to an open form.
void BringToFront(Form& form);
/// Gives the focus to the enabled form that shows this record; returns whether there is one.
bool BringToFront(std::int32_t id);

/// Asks each form that has something to ask before it closes, the last opened first, until one
/// refuses; returns true if all may close.
bool MayCloseAllForms();

/// Closes all forms without asking, the last opened first, and processes window messages after
/// each.
void CloseAllForms();

/// Makes core::EditRecord look for the record's open form first.
void RegisterOpenForms();

} // namespace core::forms
