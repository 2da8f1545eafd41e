#pragma once

namespace core {

/// Returns the number by its first 15 digits, which are the ones a user entered or expects: 0.0725
/// times 100 is 7.25 on the screen, and rounds as 7.25 does.
double ShownNumber(double number);

} // namespace core
