#pragma once

#include <cstdint>

namespace core::forms {

class Form;

// The forms that are open, in the order they were opened.

void AddOpenForm(Form& form);

/// Gives the focus to the form that has this record open, if it is enabled; true when there is one.
bool BringToFront(std::int32_t id);

/// Asks each form that has something to ask before it closes, the last opened first, until one is
/// to stay; true when all may go.
bool MayCloseAllForms();

/// Unloads all forms, the last opened first, and lets window messages run after each. Nothing is
/// asked.
void CloseAllForms();

/// Makes opening a record (core::EditRecord) look for its open form first.
void RegisterOpenForms();

} // namespace core::forms
