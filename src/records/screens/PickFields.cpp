#include "records/screens/PickFields.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <vector>

#include "core/binding/Binding.h"
#include "core/binding/ComboList.h"

namespace records::screens {

namespace {

std::vector<QComboBox*> PickFields(const QWidget& form) {
    std::vector<QComboBox*> fields;
    for (QWidget* const control : core::binding::ControlsOf(form)) {
        auto* const combo = qobject_cast<QComboBox*>(control);
        if (combo && combo->property("pickList").toBool()) fields.push_back(combo);
    }
    return fields;
}

} // namespace

void LoadPickFields(QWidget& form) {
    for (QComboBox* const combo : PickFields(form)) {
        const QSignalBlocker quiet(combo);
        combo->clear();
        core::binding::LoadPickList(*combo);
        combo->setCurrentIndex(-1);
        combo->clearEditText();
    }
}

void SavePickFields(const QWidget& form) {
    for (const QComboBox* const combo : PickFields(form))
        core::binding::SavePickList(*combo);
}

} // namespace records::screens
