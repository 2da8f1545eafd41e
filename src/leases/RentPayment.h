#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// One open charge that a payment can settle.
struct PaymentCharge {
    std::int32_t idRentLog = 0;
    platform::Date datePosted;
    platform::Currency amount;
    RentFlags flags = RentFlags::Ordinary;
    bool selected = true;
};

/// A payment of one class against a lease, as it stands before it is submitted.
struct RentPayment {
    std::int32_t idLease = 0;
    RentClass rentClass = RentClass::Rent;
    platform::Date dateEffective;
    /// Who pays: record kind (account or tenant), id and name.
    std::int16_t fromType = 0;
    std::int32_t fromId = 0;
    std::string fromName;
    /// The receiving account, 0 for none.
    std::int32_t toAccount = 0;
    std::string toName;
    std::string checkNumber;
    /// The category that the transaction and the payment row carry.
    std::string paymentWord;
    std::string description;
    std::vector<PaymentCharge> charges;

    /// The sum of the selected charges; a credit lowers it.
    platform::Currency Total() const;
};

/// The payment of all open charges of a class as it is proposed today: from the tenant (a subsidy
/// from its payor) to the lease's rent account. A lease that isn't there is a DatabaseError.
RentPayment ProposePayment(std::int32_t idLease, RentClass rentClass);

/// Posts a new payment: the transaction, the payment row, the selected charges settled by it, the
/// next due date moved once for each period's rent among them, and the lease brought up to date.
/// One unit of work; failures are thrown. Answers the transaction's id.
std::int32_t SubmitPayment(const RentPayment& payment);

} // namespace leases
