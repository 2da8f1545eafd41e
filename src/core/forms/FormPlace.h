#pragma once

#include <vector>

#include "core/FormPosition.h"

namespace core::forms {

/// Returns where to put a form: the wanted place if enough of its top edge is on a screen to drag
/// the form by it; otherwise the place moved and shrunk into the nearest screen. If there is no
/// screen, the wanted place.
FormRectangle RescuedPlace(const FormRectangle& wanted, const std::vector<FormRectangle>& screens);

} // namespace core::forms
