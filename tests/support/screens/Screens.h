#pragma once

// The includes of every test of a screen: widgets, books to show, and the driving and checking of
// forms.

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "platform/qt/Text.h"
#include "support/screens/Driving.h"
#include "support/screens/Gallery.h"
#include "support/screens/ScreenChecks.h"
#include "support/screens/ScreenFixture.h"

namespace support {

using platform::qt::FromScreen;
using platform::qt::ToScreen;
/// Messages or faults, a line each.
using Said = std::vector<std::string>;

/// How the list of a form's errors begins.
inline const std::string kRoll = "Whoa!: The following errors have occured:\n\n";

} // namespace support
