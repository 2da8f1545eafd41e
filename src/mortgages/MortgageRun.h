#pragma once

#include "core/DailyRun.h"

namespace mortgages {

/// Brings every mortgage up to date, in the order of the table. One that fails is reported to the
/// listener and left unchanged; the others are processed. Many are committed together, and reported
/// after that.
void UpdateMortgages(core::RunListener& listener);

} // namespace mortgages
