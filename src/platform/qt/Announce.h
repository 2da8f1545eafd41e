#pragma once

class QLabel;

namespace platform::qt {

/// Lets screen readers say the text that a label shows now: they don't follow labels by themselves.
void Announce(QLabel& label);

} // namespace platform::qt
