#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"

namespace core::binding {

/// Whether a control whose field isn't in the row set is allowed.
enum class CheckFields {
    No, ///< a FieldError
    Yes ///< it is skipped
};

/// Returns the controls of `form`, in creation order. Controls inside a panel (a child with the
/// property "panel" set) belong to the panel.
std::vector<QWidget*> ControlsOf(const QWidget& form);

/// Shows the current row in the controls of `form` whose property "tag" names a field: a sigil,
/// then the field, or table and field separated by a point, with only the fields of `table` shown
/// if it is given. A null leaves its control unchanged.
void BindFromRecord(QWidget& form, platform::Recordset& row, std::string_view table = {},
                    CheckFields check = CheckFields::No);

/// Copies the contents of the controls to the current row; the caller updates it. Labels are never
/// written. Throws if a value doesn't convert: text that isn't a valid amount or date, or a number
/// outside the field's range.
void BindToRecord(const QWidget& form, platform::Recordset& row, std::string_view table = {},
                  CheckFields check = CheckFields::No);

} // namespace core::binding
