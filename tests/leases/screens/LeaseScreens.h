#pragma once

#include <QApplication>
#include <QPointer>
#include <string>
#include <vector>

#include "leases/RentLog.h"
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

inline constexpr std::int32_t kLease = 40;

/// Lease 40 of tenant Smith in 12 Elm St B, running since the year began, due 05/01/2024, charged
/// up to today; and the openers of the screens that these screens open.
class LeaseScreenTest : public support::ScreenTest {
  protected:
    LeaseScreenTest();
    ~LeaseScreenTest() override;

    /// An open row of the ledger; answers its id.
    static std::int32_t Charge(const char* day, int units,
                               leases::RentFlags flags = leases::RentFlags::Ordinary,
                               leases::RentClass rentClass = leases::RentClass::Rent);
    static void Set(std::string_view field, std::string_view value);
    static std::string Lease(std::string_view field);
    static std::string Text(const QWidget& form, const char* box);
    /// The rows of a list of charges as they show, cells separated by "|", ticked ones with "x ".
    static Said Rows(const QWidget& form, const char* list);
    /// The form of this class that is open last.
    template <class Screen>
    static QPointer<Screen> Opened() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const form = qobject_cast<Screen*>(window);
            if (form && form->isVisible()) return form;
        }
        return nullptr;
    }
    static void Trigger(const QWidget& form, const char* item);

    /// "kind id" of each other record that was opened.
    std::vector<std::string> opened_;
};

} // namespace tests
