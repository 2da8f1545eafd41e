#pragma once

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace core::binding {

class DateEdit;

/// Returns the error line for a box whose text isn't a valid date.
std::string NotADay(const DateEdit& box);

/// Returns that error line for each box of the form that doesn't hold a valid date and for which
/// `counts` returns true.
std::vector<std::string> DayErrors(const QWidget& form,
                                   const std::function<bool(const QWidget& box)>& counts = {});

} // namespace core::binding
