#pragma once

#include <string>
#include <vector>

class QWidget;

namespace core::binding {

class DateEdit;

/// The line of the error roll for a box whose text is no day.
std::string NotADay(const DateEdit& box);

/// One such line for each box of the form that holds what is no day.
std::vector<std::string> DayErrors(const QWidget& form);

} // namespace core::binding
