#pragma once

#include "leases/RentPayment.h"
#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmRentPayment.h"

namespace tests {

/// The lease with two open rents and a fee, and next due at the first of the rents.
class PaymentScreenBooks : public LeaseScreenTest {
  protected:
    PaymentScreenBooks() {
        Charge("04/01/2024", 950, leases::RentFlags::PeriodRent);
        Charge("05/01/2024", 950, leases::RentFlags::PeriodRent);
        Charge("05/06/2024", 40);
        Set("DateNextDue", "04/01/2024");
    }

    static QPointer<leases::screens::frmRentPayment> Open(
        std::int32_t id = 0, leases::TransactionClass rentClass = leases::TransactionClass::Rent) {
        QPointer<leases::screens::frmRentPayment> form(new leases::screens::frmRentPayment);
        form->Setup(id, kLease, rentClass, leases::LeaseUpdate::Yes);
        return form;
    }
};

} // namespace tests
