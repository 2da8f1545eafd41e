#include "records/screens/StoredChoice.h"

#include <QComboBox>

#include "core/binding/ComboList.h"

namespace records::screens {

void ShowStoredChoice(QComboBox& combo, const platform::Field& field) {
    if (field.IsBlank()) return combo.setCurrentIndex(-1);
    core::binding::SelectByText(combo, field.AsText(), {.setText = true});
}

} // namespace records::screens
