#pragma once

#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmLease.h"

namespace tests {

/// The lease's own screen.
class LeaseForm : public LeaseScreenTest {
  protected:
    static QPointer<leases::screens::frmLease> Open(std::int32_t id = kLease) {
        return support::Show<leases::screens::frmLease>(id);
    }
    static bool IsEnabled(const QWidget& form, const char* name) {
        if (const auto* const action = form.findChild<QAction*>(QLatin1String(name))) {
            return action->isEnabled();
        }
        return Find<QWidget>(form, name).isEnabled();
    }
    static std::string Titles(const Said& heard) {
        std::string titles;
        for (const std::string& said : heard)
            titles += said.substr(0, said.find(':')) + ";";
        return titles;
    }
};

} // namespace tests
