#include "records/screens/Fields.h"

#include "core/Globals.h"
#include "support/screens/Screens.h"

namespace support {

using platform::qt::FromScreen;

namespace {

void EnterOne(const QWidget& form, const FieldEntry& field) {
    QWidget& control = Find<QWidget>(form, field.control);
    if (auto* const box = qobject_cast<QCheckBox*>(&control)) {
        if (!box->isChecked()) box->click();
        return;
    }
    const auto* const combo = qobject_cast<QComboBox*>(&control);
    if (combo && !combo->isEditable()) return Choose(form, field.control, field.text);
    Type(control, field.text);
}

std::string Shown(const QWidget& control) {
    if (const auto* const box = qobject_cast<const QCheckBox*>(&control)) {
        return box->isChecked() ? "x" : "";
    }
    if (const auto* const combo = qobject_cast<const QComboBox*>(&control)) {
        return FromScreen(combo->currentText());
    }
    if (const auto* const page = qobject_cast<const QPlainTextEdit*>(&control)) {
        return FromScreen(page->toPlainText());
    }
    if (const auto* const line = qobject_cast<const QLineEdit*>(&control)) {
        return FromScreen(line->text());
    }
    return "?";
}

} // namespace

void Enter(const QWidget& form, const std::vector<FieldEntry>& fields) {
    for (const FieldEntry& field : fields)
        EnterOne(form, field);
}

std::vector<std::string> ShownFaults(const QWidget& form, const std::vector<FieldEntry>& fields) {
    std::vector<std::string> faults;
    for (const FieldEntry& field : fields) {
        const std::string shown = Shown(Find<QWidget>(form, field.control));
        if (shown != field.text) faults.push_back(std::string(field.control) + ": " + shown);
    }
    return faults;
}

std::vector<std::string> StoredFaults(std::string_view table, std::string_view where,
                                      const std::vector<FieldEntry>& fields) {
    platform::Recordset row;
    row.Open(core::App().Connection,
             "SELECT * FROM " + std::string(table) + " WHERE " + std::string(where));
    if (row.RecordCount() != 1) return {std::to_string(row.RecordCount()) + " rows"};
    std::vector<std::string> faults;
    for (const FieldEntry& field : fields) {
        const platform::Value value = row[field.column].Value();
        const std::string text = value.IsNull() ? "NULL" : value.AsText();
        const std::string_view wanted = field.stored.empty() ? field.text : field.stored;
        if (text != wanted) faults.push_back(std::string(field.column) + ": " + text);
    }
    return faults;
}

} // namespace support
