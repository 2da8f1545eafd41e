#pragma once

#include <vector>

#include "core/FormPosition.h"

namespace core::forms {

/// The place of a form on the screens that there are: as wanted when enough of its top edge to take
/// hold of is on one of them, else moved and shrunk into the nearest. Without a screen as wanted.
FormRectangle RescuedPlace(const FormRectangle& wanted, const std::vector<FormRectangle>& screens);

} // namespace core::forms
