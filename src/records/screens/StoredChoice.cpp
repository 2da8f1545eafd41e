#include "records/screens/StoredChoice.h"

#include <QComboBox>

#include "core/screens/ComboList.h"

namespace records::screens {

void ShowStoredChoice(QComboBox& combo, const platform::Field& field) {
    if (field.IsBlank()) return combo.setCurrentIndex(-1);
    core::screens::SelectByText(combo, field.AsText(), {.setText = true});
}

} // namespace records::screens
