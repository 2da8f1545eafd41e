#include "core/binding/ControlValue.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <array>
#include <charconv>
#include <string>

#include "core/ShownNumber.h"
#include "core/binding/ComboList.h"
#include "core/binding/DateEdit.h"
#include "platform/qt/Text.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace core::binding {

namespace {

using platform::Value;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

/// Returns nothing if the control can't be typed in.
std::optional<std::string> TextOf(const QWidget& control) {
    if (const auto* const line = qobject_cast<const QLineEdit*>(&control)) {
        return FromScreen(line->text());
    }
    if (const auto* const page = qobject_cast<const QPlainTextEdit*>(&control)) {
        return FromScreen(page->toPlainText());
    }
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) {
        return FromScreen(combo->currentText());
    }
    return std::nullopt;
}

void ShowText(QWidget& control, std::string_view text) {
    const QString shown = ToScreen(text);
    if (TextOf(control) == text) return; // the caret stays
    if (auto* const label = qobject_cast<QLabel*>(&control)) return label->setText(shown);
    if (auto* const line = qobject_cast<QLineEdit*>(&control)) {
        line->setText(shown);
        return line->setCursorPosition(0); // a long text shows from its start
    }
    if (auto* const page = qobject_cast<QPlainTextEdit*>(&control)) {
        return page->setPlainText(shown);
    }
    if (auto* const combo = qobject_cast<QComboBox*>(&control)) {
        SelectByText(*combo, text, {.setText = true});
    }
}

void ShowChoice(QWidget& control, std::int32_t id) {
    if (auto* const combo = qobject_cast<QComboBox*>(&control)) {
        return SelectById(*combo, id, {.selectFirst = true});
    }
    auto* const list = qobject_cast<QListWidget*>(&control);
    if (!list || list->count() == 0) return;
    int row = 0;
    for (int i = list->count() - 1; i >= 0; --i) {
        if (list->item(i)->data(Qt::UserRole).toInt() == id) row = i;
    }
    list->setCurrentRow(row);
}

std::optional<Value> ReadChoice(const QWidget& control) {
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) {
        return Value(GetSelectedId(*combo));
    }
    if (const auto* const list = qobject_cast<const QListWidget*>(&control)) {
        const QListWidgetItem* const item = list->currentItem();
        return Value(std::int32_t{item ? item->data(Qt::UserRole).toInt() : 0});
    }
    return std::nullopt;
}

void ShowDay(QWidget& control, const Value& value) {
    auto* const edit = qobject_cast<DateEdit*>(&control);
    if (!edit) return ShowText(control, platform::Format(value, platform::kDateFormat));
    edit->SetStoredText(ToScreen(value.AsText()));
}

Value ReadDay(const QWidget& control, const std::string& text) {
    const auto* const edit = qobject_cast<const DateEdit*>(&control);
    if (!edit) return {platform::Date::Parse(text).ToText()};
    const auto day = edit->Day();
    if (!day) throw platform::ConversionError("\"" + text + "\" is not a day (mm/dd/yyyy)");
    return {day->ToText()};
}

Value ReadMoney(const std::string& text) {
    if (platform::Trim(text).empty()) return {platform::Currency()};
    const auto amount = platform::TryParseMoney(text);
    if (!amount) throw platform::ConversionError("\"" + text + "\" is not an amount of money");
    return {*amount};
}

/// Returns the fraction in single precision, as the number with the fewest digits that identify it:
/// 7.5 becomes 0.075, and not the double that is nearest to the single.
Value ReadPercent(const std::string& text) {
    const float fraction = platform::StrToSingle(text) / 100.0F;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), fraction).ptr;
    double spelled = 0;
    std::from_chars(digits.data(), end, spelled);
    return {spelled};
}

Value ReadTyped(const QWidget& control, char sigil, const std::string& text) {
    switch (sigil) {
        case '#':
        case '&':
            return {platform::TryParseNumber(text).value_or(0)};
        case '$':
            return ReadMoney(text);
        case '@':
            return ReadDay(control, text);
        case '%':
            return ReadPercent(text);
        default:
            return {text};
    }
}

} // namespace

void ShowValue(QWidget& control, char sigil, const Value& value) {
    switch (sigil) {
        case '_':
        case '#':
            return ShowText(control, value.AsText());
        case '&':
            return ShowText(control,
                            platform::FormatNumber(ShownNumber(value.AsDouble()), "#,###.0"));
        case '$':
            return ShowText(control, platform::FormatMoney(value.AsCurrency()));
        case '%':
            return ShowText(
                control, platform::FormatNumber(ShownNumber(value.AsDouble() * 100), "#,###.0#"));
        case '@':
            return ShowDay(control, value);
        case '!':
            return ShowChoice(control, value.AsLong());
        case '?':
            if (auto* const combo = qobject_cast<QComboBox*>(&control)) {
                SelectByText(*combo, value.AsText());
            }
            return;
        case '*':
            if (auto* const box = qobject_cast<QAbstractButton*>(&control)) {
                box->setChecked(value.AsBoolean());
            }
            return;
        case ':':
            if (auto* const option = qobject_cast<QAbstractButton*>(&control)) {
                if (option->property("index").toInt() == value.AsLong()) option->setChecked(true);
            }
            return;
        default:
            return;
    }
}

std::optional<Value> ReadValue(const QWidget& control, char sigil) {
    if (sigil == '!') return ReadChoice(control);
    if (sigil == '*' || sigil == ':') {
        const auto* const button = qobject_cast<const QAbstractButton*>(&control);
        if (!button) return std::nullopt;
        if (sigil == '*') return Value(button->isChecked());
        if (!button->isChecked()) return std::nullopt;
        return Value(std::int32_t{button->property("index").toInt()});
    }
    const std::optional<std::string> text = TextOf(control);
    if (!text) return std::nullopt;
    return ReadTyped(control, sigil, *text);
}

void OfferChoice(QWidget& control, char sigil, const Value& value) {
    auto* const combo = qobject_cast<QComboBox*>(&control);
    if (!combo || value.IsBlank()) return;
    if (sigil == '!') OfferId(*combo, value.AsLong());
    if (sigil == '?') OfferText(*combo, value.AsText());
}

QVariant ContentOf(const QWidget& control) {
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) {
        return QVariantList{combo->currentText(), GetSelectedId(*combo)};
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->isChecked();
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) return label->text();
    const std::optional<std::string> text = TextOf(control);
    return text ? QVariant(ToScreen(*text)) : QVariant();
}

void ShowContent(QWidget& control, const QVariant& content) {
    if (auto* const combo = qobject_cast<QComboBox*>(&control)) {
        const QVariantList parts = content.toList();
        if (parts.size() != 2) return;
        const QSignalBlocker quiet(*combo);
        combo->setCurrentIndex(-1);
        if (combo->isEditable()) combo->clearEditText();
        // In a list without ids every row has id 0, so the text decides.
        SelectByText(*combo, FromScreen(parts[0].toString()));
        if (GetSelectedId(*combo) != parts[1].toInt()) SelectById(*combo, parts[1].toInt());
        return;
    }
    if (auto* const button = qobject_cast<QAbstractButton*>(&control)) {
        return button->setChecked(content.toBool());
    }
    ShowText(control, FromScreen(content.toString()));
}

} // namespace core::binding
