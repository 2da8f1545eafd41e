#include "core/binding/DayErrors.h"

#include "core/binding/Binding.h"
#include "core/binding/DateEdit.h"
#include "platform/qt/Text.h"

namespace core::binding {

std::string NotADay(const DateEdit& box) {
    return "\"" + platform::qt::FromScreen(box.text()) + "\" is not a date (mm/dd/yyyy).";
}

std::vector<std::string> DayErrors(const QWidget& form,
                                   const std::function<bool(const QWidget& box)>& counts) {
    std::vector<std::string> lines;
    for (const QWidget* const control : ControlsOf(form)) {
        const auto* const box = qobject_cast<const DateEdit*>(control);
        if (box && !box->IsValid() && (!counts || counts(*box))) lines.push_back(NotADay(*box));
    }
    return lines;
}

} // namespace core::binding
