#pragma once

#include "books/Categories.h"

class QComboBox;

namespace books::screens {

// The box of categories: "No Category Selected", then those of the books; each item carries its
// class. None of these makes the box tell of a change.

/// Fills it; nothing is selected but the words.
void FillCategories(QComboBox& box);
/// Fills the box of an event's trigger, which offers the payments' categories besides.
void FillTriggerCategories(QComboBox& box);
/// Fills it again; the selected category stays selected, offered or not.
void RefreshCategories(QComboBox& box);
void RefreshTriggerCategories(QComboBox& box);

/// Puts a category before all others, and selects it.
void PresetCategory(QComboBox& box, const Category& category);
/// Selects the category of a row, which joins the list if it isn't offered.
void ShowCategory(QComboBox& box, const Category& category);

Category ChosenCategory(const QComboBox& box);

} // namespace books::screens
