#include "core/binding/NumberBox.h"

#include <QLineEdit>

#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace core::binding {

double NumberIn(const QLineEdit& box) {
    return platform::TryParseNumber(platform::qt::FromScreen(box.text())).value_or(0);
}

double NumberTyped(const QLineEdit& box) {
    try {
        return NumberIn(box);
    } catch (const platform::OverflowError&) {
        return 0;
    }
}

} // namespace core::binding
