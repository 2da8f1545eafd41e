#include "core/binding/ShownFields.h"

#include <QLabel>

#include "core/binding/Binding.h"
#include "core/binding/ControlValue.h"

namespace core::binding {

namespace {

const QVariant kNothingChosen = QVariantList{QString(), 0};

} // namespace

bool ShownFields::Contents::operator==(const Contents& other) const {
    if (value && other.value) return *value == *other.value;
    return value.has_value() == other.value.has_value() && content == other.content;
}

template <class Action>
void ShownFields::ForEach(const QWidget& form, Action action) const {
    for (QWidget* const control : ControlsOf(form)) {
        const std::optional<Binding> binding = ReadTag(TagOf(*control), table_);
        if (binding) action(*control, *binding);
    }
}

ShownFields::Contents ShownFields::ContentsOf(const QWidget& control, char sigil) {
    const QVariant content = ContentOf(control);
    try {
        return {ReadValue(control, sigil), content};
    } catch (const platform::Error&) {
        return {std::nullopt, content};
    }
}

void ShownFields::KeepBlanks(const QWidget& form) {
    if (!blanks_.empty()) return;
    ForEach(form,
            [this](QWidget& control, const Binding&) { blanks_[&control] = ContentOf(control); });
}

void ShownFields::ShowBlanks(QWidget& form) {
    Forget();
    ForEach(form, [this](QWidget& control, const Binding&) { ShowBlank(control); });
}

void ShownFields::ShowBlank(QWidget& control) const {
    const auto blank = blanks_.find(&control);
    if (blank != blanks_.end()) ShowContent(control, blank->second);
}

void ShownFields::ShowOne(QWidget& control, const Binding& binding, const platform::Field& field) {
    const platform::Value stored = field.Value();
    if (stored.IsNull()) {
        ShowBlank(control);
    } else if (binding.sigil == '?' && stored.IsBlank()) {
        ShowContent(control, kNothingChosen);
    } else {
        OfferChoice(control, binding.sigil, stored);
        ShowValue(control, binding.sigil, stored);
    }
    shown_[&control] = {stored, ContentsOf(control, binding.sigil)};
}

void ShownFields::Show(QWidget& form, platform::Recordset& row) {
    ForEach(form, [&](QWidget& control, const Binding& binding) {
        ShowOne(control, binding, row[binding.field]);
    });
    Settle(form);
}

void ShownFields::Settle(const QWidget& form, const Controls& touched) {
    ForEach(form, [&](const QWidget& control, const Binding& binding) {
        const auto shown = shown_.find(&control);
        if (shown != shown_.end() && !touched.contains(&control))
            shown->second.contents = ContentsOf(control, binding.sigil);
    });
}

void ShownFields::ShowUntouched(QWidget& form, platform::Recordset& row, const Controls& touched) {
    ForEach(form, [&](QWidget& control, const Binding& binding) {
        if (touched.contains(&control)) return;
        const platform::Field field = row[binding.field];
        const auto shown = shown_.find(&control);
        const bool isCurrent = shown != shown_.end() && shown->second.stored == field.Value() &&
                               shown->second.contents == ContentsOf(control, binding.sigil);
        if (!isCurrent) ShowOne(control, binding, field);
    });
}

bool ShownFields::IsTouched(const QWidget& control) const {
    if (qobject_cast<const QLabel*>(&control)) return false; // only code writes into it
    const auto shown = shown_.find(&control);
    if (shown == shown_.end()) return true;
    const std::optional<Binding> binding = ReadTag(TagOf(control), table_);
    return binding && shown->second.contents != ContentsOf(control, binding->sigil);
}

Controls ShownFields::Touched(const QWidget& form) const {
    Controls touched;
    ForEach(form, [&](const QWidget& control, const Binding&) {
        if (IsTouched(control)) touched.insert(&control);
    });
    return touched;
}

void ShownFields::Write(const QWidget& form, platform::Recordset& row, WriteFields which) const {
    ForEach(form, [&](const QWidget& control, const Binding& binding) {
        if (which == WriteFields::Touched && !IsTouched(control)) return;
        const std::optional<platform::Value> value = ReadValue(control, binding.sigil);
        if (value) row[binding.field].Set(*value);
    });
}

} // namespace core::binding
