#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"

namespace core::binding {

/// What becomes of a control whose field the row set doesn't have.
enum class CheckFields {
    No, ///< a FieldError
    Yes ///< it is passed over
};

/// The controls inside `form` that are its own, in the order they were made. The inside of a panel
/// (a child with the property "panel" set) belongs to the panel.
std::vector<QWidget*> ControlsOf(const QWidget& form);

/// Shows the current row in the controls of `form` whose property "tag" names a field: a sigil,
/// then the field, or table and field parted by a point where `table` chooses among them. A null
/// leaves its control as it is.
void BindFromRecord(QWidget& form, platform::Recordset& row, std::string_view table = {},
                    CheckFields check = CheckFields::No);

/// Puts what the controls show into the current row; the caller updates it. Labels only show. What
/// doesn't convert is thrown: a text that is no amount or no day, a number that the field can't
/// hold.
void BindToRecord(const QWidget& form, platform::Recordset& row, std::string_view table = {},
                  CheckFields check = CheckFields::No);

} // namespace core::binding
