#pragma once

#include "books/Categories.h"

class QComboBox;

namespace books::screens {

// The category box: "No Category Selected", then the categories of the books, each item with its
// class. None of these emits the box's change signals.

/// Fills the box and selects "No Category Selected".
void FillCategories(QComboBox& box);
/// Fills the box of an event's trigger, which also offers the categories of payments.
void FillTriggerCategories(QComboBox& box);
/// Fills the box again; the selected category stays selected, whether or not it is still offered.
void RefreshCategories(QComboBox& box);
void RefreshTriggerCategories(QComboBox& box);

/// Inserts a category before all others and selects it.
void PresetCategory(QComboBox& box, const Category& category);
/// Selects the category of a row; adds it to the list if it isn't offered.
void ShowCategory(QComboBox& box, const Category& category);

Category ChosenCategory(const QComboBox& box);

} // namespace books::screens
