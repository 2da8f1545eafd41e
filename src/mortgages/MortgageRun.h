#pragma once

#include "core/DailyRun.h"

namespace mortgages {

/// Brings every mortgage up to date, in the order of the table. One that fails is told to the
/// listener and left as it was; the others go on. Many are kept at a time, and told once they are.
void UpdateMortgages(core::RunListener& listener);

} // namespace mortgages
