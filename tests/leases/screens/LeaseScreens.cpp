#include "leases/screens/LeaseScreens.h"

#include "core/Configuration.h"
#include "core/EditRecord.h"
#include "leases/screens/frmLease.h"
#include "leases/screens/frmRentLog.h"
#include "platform/database/Recordset.h"
#include "platform/values/Date.h"

namespace tests {

LeaseScreenTest::LeaseScreenTest() {
    Run("DELETE * FROM Lease");
    // A mortgage without an account number ends its list.
    Run("DELETE * FROM Mortgage WHERE IdMortgage = 51");
    Run("INSERT INTO Lease (IdLease, IdTenant, IdUnit, Hide, Status, RentStatus, DateCreated, "
        "DateActive, DateRenewed, DateVacating, DateNextDue, DateUpdated, Term, TermType, "
        "ExpireOption, NoticeDays, Rent, RentAccount, DepositAccount, Discount, DiscountDays, "
        "OneTimeFee, OneTimeDays, DailyFee, DailyDays, EvictDays, BreakFee, Subs, SubsAmt, "
        "SubsidyType, SubsidyId, [Option], OptionCredit, OptionExpireDate) "
        "VALUES (40, 30, 20, False, 'Contracted', 'Due', "
        "'12/15/2023', '01/01/2024', '01/01/2024', '', '05/01/2024', '05/17/2024', 12, 'Month(s)', "
        "'MTM', 30, 950, 60, 60, 0, 5, 40, 5, 0, 10, 60, 200, False, 0, 1, 0, False, 0, '')");
    core::LoadConfiguration();
    for (const core::RecordKind kind : {core::kUnit, core::kTenant}) {
        core::RegisterOpener(kind, [this](const core::EditRequest& request) {
            opened_.push_back(std::to_string(core::KindNumber(request.kind)) + " " +
                              std::to_string(request.id));
        });
    }
    core::RegisterOpener(core::kLease, [](const core::EditRequest& request) {
        (new leases::screens::frmLease)->Setup(request.id);
    });
    core::RegisterOpener(core::kRentLog, [](const core::EditRequest& request) {
        (new leases::screens::frmRentLog)
            ->Setup(request.id, request.parent1,
                    core::TransactionClass{static_cast<std::int16_t>(request.parent3)});
    });
}

LeaseScreenTest::~LeaseScreenTest() {
    for (const core::RecordKind kind : {core::kUnit, core::kTenant, core::kLease, core::kRentLog})
        core::RegisterOpener(kind, nullptr);
}

std::int32_t LeaseScreenTest::Charge(const char* day, int units, leases::RentFlags flags,
                                     core::TransactionClass rentClass) {
    return leases::WriteRentLog(
        {.idLease = kLease,
         .datePosted = platform::Date::Parse(day),
         .rentClass = rentClass,
         .category = flags == leases::RentFlags::PeriodRent ? "Rent" : "Late Fee",
         .amount = platform::Currency::FromUnits(units),
         .description =
             flags == leases::RentFlags::PeriodRent ? "Rent due " + std::string(day) : "Late Fee",
         .flags = flags});
}

void LeaseScreenTest::Set(std::string_view field, std::string_view value) {
    core::App().Connection.Execute(
        "UPDATE Lease SET " + std::string(field) + " = ? WHERE IdLease = 40", {value});
}

std::string LeaseScreenTest::Lease(std::string_view field) {
    return Ask("SELECT " + std::string(field) + " FROM Lease WHERE IdLease = 40");
}

} // namespace tests
