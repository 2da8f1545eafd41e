#pragma once

#include <QApplication>
#include <QPointer>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "support/screens/Driving.h"
#include "support/screens/Gallery.h"
#include "support/screens/ScreenChecks.h"
#include "support/screens/ScreenFixture.h"

namespace tests {

using support::Choose;
using support::ClickAction;
using support::ClickOn;
using support::Find;
using support::Type;
using Said = std::vector<std::string>;

inline constexpr std::int32_t kLoan = 50;

/// Mortgage 50 of 120,000.00 at 6 percent over 360 months, first due 01/01/2024, with escrow; today
/// is 05/17/2024, and all until then is charged and open. And the openers of its screens.
class MortgageScreenTest : public support::ScreenTest {
  protected:
    MortgageScreenTest();
    ~MortgageScreenTest() override;

    static std::string Loan(std::string_view field);
    static std::string Text(const QWidget& form, const char* box);
    /// The rows of a list as they show, cells separated by "|", ticked ones with "x ".
    static Said Lines(const QWidget& form, const char* list);
    static void Tick(const QWidget& form, int row, bool ticked);
    static void Trigger(const QWidget& form, const char* item);
    /// The form of this class that is open.
    template <class Screen>
    static QPointer<Screen> Opened() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const form = qobject_cast<Screen*>(window);
            if (form && form->isVisible()) return form;
        }
        return nullptr;
    }
    /// What is wrong with how a screen looks and is driven.
    static Said Faults(QWidget& form, const std::string& picture);
};

} // namespace tests
