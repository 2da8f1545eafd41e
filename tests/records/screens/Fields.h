#pragma once

#include <QWidget>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// One field as a person enters it and as it is stored.
struct FieldEntry {
    const char* control;   ///< object name; what is typed, chosen or ("x") ticked depends on it
    std::string_view text; ///< what is entered
    const char* column;
    std::string_view stored; ///< as text; empty for the same as entered
};

/// Enters each field by its control.
void Enter(const QWidget& form, const std::vector<FieldEntry>& fields);
/// What the controls hold, where it isn't what was entered: "control: text" each.
std::vector<std::string> ShownFaults(const QWidget& form, const std::vector<FieldEntry>& fields);
/// What the one row of the table that meets `where` holds otherwise: "column: text" each.
std::vector<std::string> StoredFaults(std::string_view table, std::string_view where,
                                      const std::vector<FieldEntry>& fields);

} // namespace support
