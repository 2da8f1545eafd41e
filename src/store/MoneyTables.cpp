#include "store/TableParts.h"

namespace store {

using enum FieldKind;

namespace {

TableDefinition LeaseTable() {
    return MakeTable(
        "Lease",
        {{Long, "IdLease IdTenant IdUnit"},
         {Boolean, "Hide Selected"},
         {Text, "Status RentStatus"},
         {DateText, "DateCreated DateActive DateRenewed DateVacating DateNextDue DateUpdated"},
         {Integer, "Term"},
         {Text, "TermType ExpireOption"},
         {Integer, "NoticeDays"},
         {Currency, "Rent RentDue"},
         {Long, "RentAccount DepositAccount"},
         {Currency, "Discount"},
         {Integer, "DiscountDays"},
         {Currency, "OneTimeFee"},
         {Integer, "OneTimeDays"},
         {Currency, "DailyFee"},
         {Integer, "DailyDays EvictDays"},
         {Currency, "BreakFee"},
         {Boolean, "Subs"},
         {Currency, "SubsAmt"},
         {Long, "SubsidyType SubsidyId"},
         {Currency, "SubsDue"},
         {Boolean, "Option"},
         {Currency, "OptionPrice"},
         {DateText, "OptionExpireDate"},
         {Boolean, "OptionRenews"},
         {Currency,
          "OptionCredit OptionBalance DepositTotal DepositDue DepositPaid DepositRefunded "
          "DepositCharged DepositBalance LastPaid"},
         {Boolean, "Pets SubLet"},
         {Memo, "PetList Residents Notes"}},
        {"IdLease", "IdTenant", "IdUnit"});
}

// Sums over this table ask for the open rows of one lease. With both links in one index they never
// walk the open rows of all leases, whatever the engine guesses about the distribution of the
// links.
TableDefinition RentLogTable() {
    return MakeTable("RentLog",
                     {{Long, "IdRentLog IdLease IdTransaction"},
                      {DateText, "DatePosted"},
                      {Integer, "Class"},
                      {Text, "Category"},
                      {Currency, "Amount"},
                      {Text, "Description"},
                      {Integer, "Flags"}},
                     {"IdRentLog", "IdLease IdTransaction", "IdTransaction"});
}

TableDefinition DepositTable() {
    return MakeTable("Deposit",
                     {{Long, "IdDeposit IdBuilding IdUnit"},
                      {Boolean, "IsGlobal"},
                      {Text, "Description"},
                      {Currency, "Amount"}},
                     {"IdDeposit", "IdBuilding", "IdUnit"});
}

TableDefinition TransactionsTable() {
    return MakeTable(
        "Transactions",
        {{Long, "IdTransaction"},
         {DateText, "DateEffective"},
         {Integer, "DebitType CreditType"},
         {Long, "DebitId CreditId"},
         {Text, "DebitDesc CreditDesc"},
         {Currency, "DebitPrevBal DebitNewBal CreditPrevBal CreditNewBal"},
         {Boolean, "DebitExported CreditExported"},
         {Currency, "Amount"},
         {Text, "CheckNum TaxCategory"},
         {Integer, "IEN Class Flags"},
         {Text, "Description"},
         {Boolean, "Reconciled"},
         {Long, "IdTenant IdBuilding IdUnit IdLease IdMortgage IdWorkOrder IdMileage IdLedger"}},
        {"IdTransaction", "DebitId", "CreditId", "IdTenant", "IdUnit", "IdLease"});
}

TableDefinition TransCategoryTable() {
    return MakeTable("TransCategory", {{Text, "Category"}, {Integer, "IEN"}});
}

TableDefinition MortgageTable() {
    return MakeTable(
        "Mortgage",
        {{Long, "IdMortgage IdBuilding IdMortgagor IdMortgagee IdEscrow IdLastPmt"},
         {Boolean, "Hide Selected"},
         {Text, "Status PmtStatus AccountNumber Description"},
         {Boolean, "Assumable"},
         {Double, "OrigPV OrigPer OrigRate OrigPmt"},
         {DateText, "FirstDue NextDue DateUpdated"},
         {Integer, "CurrentPeriod"},
         {Double, "CurrentPV CurrentI CurrentPmt CurrentIPmt CurrentPPmt"},
         {Integer, "RemainingT"},
         {Boolean, "BalloonMtg"},
         {Integer, "BalloonPer"},
         {Double, "BalloonPmt"},
         {Boolean, "IntOnly ARM"},
         {Integer, "ARMAdjPer ARMLockedPer"},
         {Double, "ARMPerCap ARMLifeCap"},
         {Boolean, "PPM"},
         {Integer, "PPMPer"},
         {Double, "PPMPct PPMTrigger"},
         {Memo, "xPri xRate"}, // lists that grow with every change
         {Double, "xPriAll"},
         {Currency, "EscrowAmount LastInsurance LastTaxes PMI LateFee"},
         {Integer, "EscrowBuffer EscrowReviewInterval EscrowReviewPeriods GracePeriod"},
         {DateText, "LastEscrowReview NextEscrowReview"},
         {Memo, "Notes"}},
        {"IdMortgage", "IdBuilding"});
}

TableDefinition MortgageLogTable() {
    return MakeTable("MortgageLog",
                     {{Long, "IdMortgageLog IdMortgage IdTransaction"},
                      {Integer, "Flags Period"},
                      {DateText, "DatePosted"},
                      {Text, "Category Description"},
                      {Currency, "Principal PayDown Interest Other Total"}},
                     {"IdMortgageLog", "IdMortgage IdTransaction", "IdTransaction"});
}

TableDefinition AutoEventTable() {
    return MakeTable("AutoEvent",
                     {{Long, "IdAutoEvent"},
                      {Integer, "EventType"},
                      {Text, "Description"},
                      {Boolean, "Enabled Alert"},
                      {Integer, "IntervalPeriod IntervalType TriggerType EventAction"},
                      {Long, "TriggerID"},
                      {Text, "TriggerTaxCategory TaxCategory"},
                      {Integer, "IEN"},
                      {DateText, "LastRun"},
                      {Integer, "DebitType CreditType"},
                      {Long,
                       "DebitId CreditId IdLease IdTenant IdBuilding IdUnit IdMortgage "
                       "IdWorkOrder"},
                      {Currency, "Amount"}},
                     {"IdAutoEvent"});
}

TableDefinition MileageTable() {
    return MakeTable("Mileage",
                     {{Long, "IdMileage"},
                      {Boolean, "Selected"},
                      {DateText, "EntryDate"},
                      {Text, "Vehicle Destination Purpose"},
                      {Double, "OBegin OEnd Mileage"},
                      {Currency, "Meal"},
                      {Long, "IdBuilding IdWorkOrder idUser"}},
                     {"IdMileage"});
}

} // namespace

std::vector<TableDefinition> MoneyTables() {
    return {LeaseTable(),        RentLogTable(),       DepositTable(),
            TransactionsTable(), TransCategoryTable(), MortgageTable(),
            MortgageLogTable(),  AutoEventTable(),     MileageTable()};
}

} // namespace store
