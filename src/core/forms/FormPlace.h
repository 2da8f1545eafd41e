#pragma once

#include <vector>

#include "core/FormPosition.h"

namespace core::forms {

/// Returns where to put a form: the wanted place if enough of its top edge to drag it by is on a
/// screen, else the place moved and shrunk into the nearest screen. Without a screen, the wanted
/// place.
FormRectangle RescuedPlace(const FormRectangle& wanted, const std::vector<FormRectangle>& screens);

} // namespace core::forms
