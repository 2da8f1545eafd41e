#include "kestrom/Wiring.h"
#include "leases/screens/frmLeaseWizard.h"
#include "leases/screens/frmRentPayment.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

template <class Screen>
std::vector<Screen*> Open() {
    std::vector<Screen*> screens;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const screen = qobject_cast<Screen*>(window);
        if (screen && screen->isVisible()) screens.push_back(screen);
    }
    return screens;
}

class RentCommands : public ScreenTest {
  protected:
    static void Run(const char* item, std::int32_t id) {
        kestrom::MenuCommands().Run(QLatin1String(item), {core::kLease, id});
        SettleEvents();
    }
};

TEST_F(RentCommands, PayTheSelectedLeasesRent) {
    using leases::screens::frmRentPayment;
    Run("mnuPayRent", 0);
    EXPECT_TRUE(Open<frmRentPayment>().empty()) << "nothing is selected";
    Run("mnuPayRent", 4711);
    EXPECT_TRUE(Open<frmRentPayment>().empty());
    EXPECT_EQ(Heard(), std::vector<std::string>{"Vestrel: There is no lease 4711"});
    Run("mnuPayRent", 40);
    ASSERT_EQ(Open<frmRentPayment>().size(), 1U);
    EXPECT_EQ(support::Find<QWidget>(*Open<frmRentPayment>()[0], "txtDescription")
                  .property("text")
                  .toString(),
              QStringLiteral("Rent Payment for Smith, 12 Elm St B"));
}

TEST_F(RentCommands, OpenTheLeaseWizardOnce) {
    using leases::screens::frmLeaseWizard;
    Run("mnuLeaseWizard", 0);
    Run("mnuLeaseWizard", 40);
    EXPECT_EQ(Open<frmLeaseWizard>().size(), 1U);
}

} // namespace
} // namespace support
