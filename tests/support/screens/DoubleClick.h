#pragma once

class QWidget;

namespace support {

/// Double-clicks a control as the window system reports it, which differs from two clicks.
void DoubleClickOn(QWidget& control);

} // namespace support
