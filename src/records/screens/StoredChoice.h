#pragma once

#include "platform/database/Recordset.h"

class QComboBox;

namespace records::screens {

/// Shows a stored word in a list of words: one that isn't offered joins the list, so that saving
/// the record again doesn't lose it; a blank one leaves the list without a selection.
void ShowStoredChoice(QComboBox& combo, const platform::Field& field);

} // namespace records::screens
