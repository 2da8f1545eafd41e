#include "records/screens/ResetFields.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/binding/Binding.h"
#include "core/binding/Tags.h"

namespace records::screens {

void ResetFields(QWidget& form, std::string_view table) {
    for (QWidget* const control : core::binding::ControlsOf(form)) {
        if (!core::binding::ReadTag(core::binding::TagOf(*control), table)) continue;
        if (auto* const line = qobject_cast<QLineEdit*>(control)) {
            line->clear();
        } else if (auto* const page = qobject_cast<QPlainTextEdit*>(control)) {
            page->clear();
        } else if (auto* const button = qobject_cast<QAbstractButton*>(control)) {
            button->setChecked(false);
        } else if (auto* const combo = qobject_cast<QComboBox*>(control)) {
            combo->setCurrentIndex(-1);
            if (combo->isEditable()) combo->clearEditText();
        }
    }
}

} // namespace records::screens
