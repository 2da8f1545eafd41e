#include "books/screens/OdometerBoxes.h"

#include <QLineEdit>

#include "core/binding/NumberBox.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace books::screens {

OdometerBoxes::OdometerBoxes(QLineEdit& begin, QLineEdit& end, QLineEdit& distance)
    : begin_(begin), end_(end), distance_(distance) {
    const auto typed = [this](QLineEdit& box, void (Odometer::*type)(double)) {
        connect(&box, &QLineEdit::textEdited, this, [this, &box, type] {
            (readings_.*type)(core::binding::NumberIn(box));
            ShowBoxes(&box);
        });
    };
    typed(begin, &Odometer::TypeBegin);
    typed(end, &Odometer::TypeEnd);
    typed(distance, &Odometer::TypeDistance);
}

void OdometerBoxes::Show(const Odometer& readings) {
    readings_ = readings;
    ShowBoxes(nullptr);
}

void OdometerBoxes::ShowBoxes(const QLineEdit* typed) {
    const auto show = [&](QLineEdit& box, std::optional<double> miles) {
        if (&box == typed) return;
        box.setText(miles ? platform::qt::ToScreen(platform::FormatNumber(*miles, "#,###.0"))
                          : QString());
    };
    show(begin_, readings_.Begin());
    show(end_, readings_.End());
    show(distance_, readings_.Distance());
}

} // namespace books::screens
