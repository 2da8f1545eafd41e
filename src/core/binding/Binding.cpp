#include "core/binding/Binding.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <optional>

#include "core/binding/ControlValue.h"
#include "core/binding/Tags.h"

namespace core::binding {

namespace {

/// Returns whether a widget is bound as a whole: the parts inside it are its own.
bool IsWhole(const QWidget& widget) {
    return widget.property("panel").toBool() || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget);
}

void CollectControls(const QWidget& parent, std::vector<QWidget*>& controls) {
    for (QObject* const child : parent.children()) {
        auto* const widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow()) continue;
        controls.push_back(widget);
        if (!IsWhole(*widget)) CollectControls(*widget, controls);
    }
}

template <class Action>
void ForEachBinding(const QWidget& form, platform::Recordset& row, std::string_view table,
                    CheckFields check, Action action) {
    for (QWidget* const control : ControlsOf(form)) {
        const std::optional<Binding> binding = ReadTag(TagOf(*control), table);
        if (!binding) continue;
        if (check == CheckFields::Yes && !row.HasField(binding->field)) continue;
        platform::Field field = row[binding->field];
        action(*control, binding->sigil, field);
    }
}

} // namespace

std::vector<QWidget*> ControlsOf(const QWidget& form) {
    std::vector<QWidget*> controls;
    CollectControls(form, controls);
    return controls;
}

void BindFromRecord(QWidget& form, platform::Recordset& row, std::string_view table,
                    CheckFields check) {
    ForEachBinding(form, row, table, check,
                   [](QWidget& control, char sigil, const platform::Field& field) {
                       if (!field.IsNull()) ShowValue(control, sigil, field.Value());
                   });
}

void BindToRecord(const QWidget& form, platform::Recordset& row, std::string_view table,
                  CheckFields check) {
    ForEachBinding(form, row, table, check,
                   [](const QWidget& control, char sigil, platform::Field& field) {
                       const std::optional<platform::Value> value = ReadValue(control, sigil);
                       if (value) field.Set(*value);
                   });
}

} // namespace core::binding
