#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace core::binding {

class DateEdit;

/// The line of the error roll for a box whose text is no day.
std::string NotADay(const DateEdit& box);

/// One such line for each box of the form that doesn't hold a valid date and that `counts`.
std::vector<std::string> DayErrors(const QWidget& form,
                                   const std::function<bool(const QWidget& box)>& counts = {});

} // namespace core::binding
