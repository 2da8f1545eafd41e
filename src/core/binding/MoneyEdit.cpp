#include "core/binding/MoneyEdit.h"

#include "core/binding/KeyFilterEvents.h"
#include "core/binding/Tags.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace core::binding {

MoneyEdit::MoneyEdit(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight);
    if (TagOf(*this).empty()) SetTag(*this, "$");
    installEventFilter(new KeyFilterEvents(this));
}

std::optional<platform::Currency> MoneyEdit::Amount() const {
    const std::string typed = platform::qt::FromScreen(text());
    if (platform::Trim(typed).empty()) return platform::Currency();
    try {
        return platform::TryParseMoney(typed);
    } catch (const platform::OverflowError&) {
        return std::nullopt;
    }
}

void MoneyEdit::SetAmount(platform::Currency amount) {
    setText(platform::qt::ToScreen(platform::FormatMoney(amount)));
}

void MoneyEdit::focusOutEvent(QFocusEvent* event) {
    const auto amount = Amount();
    if (amount && !isReadOnly() && isModified() && !text().isEmpty()) SetAmount(*amount);
    QLineEdit::focusOutEvent(event);
}

} // namespace core::binding
