#pragma once

class QLineEdit;

namespace core::binding {

/// Returns the number in a box, 0 if it holds none. Throws OverflowError if it is too large.
double NumberIn(const QLineEdit& box);
/// Does the same while the user types: a number that is too large then counts as 0 too.
double NumberTyped(const QLineEdit& box);

} // namespace core::binding
