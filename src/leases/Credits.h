#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "leases/CreditPurse.h"
#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

// The credits of a tenant: see removal/RentCredits.h for how the books keep them. Failures are
// thrown.

// Words that the ledger keeps in `Category` for them.
inline constexpr std::string_view kCategoryOverpayment = "Overpayment";
inline constexpr std::string_view kCategoryCredit = "Credit";
inline constexpr std::string_view kCategoryReturned = "Returned Payment";
inline constexpr std::string_view kCategoryReturnFee = "NSF Fee";

/// Ties a credit to the row that it comes from; `idReturn` is the reversal of a returned payment.
void TieCredit(std::int32_t idRentLog, std::int32_t idOrigin, std::int32_t idLease,
               std::int32_t idReturn = 0);

/// Ties a part of a credit to what the whole is tied to; does nothing for other rows.
void TiePart(std::int32_t idPart, std::int32_t idWhole);

/// Returns whether a credit comes from this row, which therefore can't be split.
bool IsOrigin(std::int32_t idRentLog);

/// Throws ConflictError if the row is the part of a payment that was paid ahead, or the reversal of
/// a returned payment: without it, or with another amount, the payment no longer adds up.
void CheckNotTied(std::int32_t idRentLog);

/// Returns the transaction that returned a payment, 0 if it wasn't returned.
std::int32_t ReturnOf(std::int32_t idTransaction);
/// Returns the payment that this transaction returned, 0 for other transactions.
std::int32_t PaymentReturnedBy(std::int32_t idTransaction);

/// Returns what the tenant has paid ahead: the open credits of a class, as a positive amount.
platform::Currency CreditBalance(std::int32_t idLease, TransactionClass rentClass);

/// Returns the open credits of rent and subsidy that can settle new charges, in the order in which
/// they are used. A discount for early payment is left out.
std::vector<OpenCredit> ReadCredits(std::int32_t idLease);

/// Returns whether the lease settles new charges from credit by itself, on the day they fall due.
bool SettlesCharges(std::int32_t idLease);
/// Returns whether any lease of the books does so.
bool AnySettlesCharges();
void SetSettlesCharges(std::int32_t idLease, bool settles);

} // namespace leases
