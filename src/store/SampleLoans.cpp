#include "store/SampleLoans.h"

#include <cmath>

#include "store/SampleWords.h"

namespace store {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

/// A loan paid off by equal monthly payments, or by its interest alone.
struct Loan {
    double principal = 0;
    int periods = 360;
    double rate = 0; ///< for a year, a fraction
    bool interestOnly = false;

    double Payment() const {
        const double monthly = rate / 12;
        if (interestOnly) return principal * monthly;
        return principal * monthly / (1 - std::pow(1 + monthly, -periods));
    }

    /// What is owed once `paid` payments are made.
    double Balance(int paid) const {
        if (interestOnly) return principal;
        const double growth = std::pow(1 + rate / 12, paid);
        return principal * growth - Payment() * (growth - 1) / (rate / 12);
    }
};

/// Escrow is looked at once a year: for some, that is due within weeks.
Date LastReview(SampleBooks& books, std::size_t index) {
    const int daysUntilNext =
        index % 4 == 0 ? books.dice.Between(5, 25) : books.dice.Between(60, 330);
    return DateAdd(Interval::Year, -1, DateAdd(Interval::Day, daysUntilNext, books.today));
}

/// The balance that the loan leaves on the building.
double AddLoan(SampleBooks& books, const SampleBuilding& building, std::size_t index) {
    SampleDice& dice = books.dice;
    const SampleAccounts& accounts = books.accounts;
    const bool adjustable = index % 4 == 1;
    const bool penalised = index % 5 == 2;
    const double share = dice.Between(45, 75) / 100.0;
    Loan loan;
    loan.principal = std::round(building.marketValue.ToDouble() * share / 1000) * 1000;
    loan.periods = dice.OneIn(3) ? 180 : 360;
    loan.rate = 0.04 + 0.00125 * dice.Between(0, 24);
    loan.interestOnly = index % 7 == 3;

    const int paid = dice.Between(14, 110);
    const Date thisMonth(books.today.Year(), books.today.Month(), 1);
    const Date nextDue = DateAdd(Interval::Month, 1, thisMonth);
    const double owed = loan.Balance(paid);
    const double interest = owed * loan.rate / 12;
    const Date reviewed = LastReview(books, index);
    const std::int32_t mortgagee = dice.Pick(accounts.mortgagees);
    const std::string number = "M-" + SampleDigits(dice, 7);
    books.rows.Add("Mortgage",
                   {{"IdBuilding", building.id},
                    {"IdMortgagor", building.idOwner},
                    {"IdMortgagee", mortgagee},
                    {"IdEscrow", mortgagee},
                    {"IdLastPmt", accounts.operatingBank},
                    {"Status", "Current"},
                    {"PmtStatus", "OK"},
                    {"AccountNumber", number},
                    {"Description", "First mortgage " + number},
                    {"Assumable", index % 6 == 0},
                    {"OrigPV", loan.principal},
                    {"OrigPer", static_cast<double>(loan.periods)},
                    {"OrigRate", loan.rate},
                    {"OrigPmt", loan.Payment()},
                    {"FirstDue", DateAdd(Interval::Month, -paid, nextDue).ToText()},
                    {"NextDue", nextDue.ToText()},
                    {"DateUpdated", books.today.ToText()},
                    {"CurrentPeriod", paid + 1},
                    {"CurrentPV", owed},
                    {"CurrentI", loan.rate},
                    {"CurrentPmt", loan.Payment()},
                    {"CurrentIPmt", interest},
                    {"CurrentPPmt", loan.Payment() - interest},
                    {"RemainingT", loan.periods - paid},
                    {"BalloonPer", 60},
                    {"IntOnly", loan.interestOnly},
                    {"ARM", adjustable},
                    {"ARMAdjPer", 12},
                    {"ARMLockedPer", adjustable ? 120 : 12},
                    {"ARMPerCap", 0.02},
                    {"ARMLifeCap", 0.06},
                    {"PPM", penalised},
                    {"PPMPer", 60},
                    {"PPMPct", 0.05},
                    {"PPMTrigger", 0.2},
                    {"EscrowAmount", Currency::FromUnits(5 * dice.Between(30, 90))},
                    {"LastInsurance", Currency::FromUnits(10 * dice.Between(60, 180))},
                    {"LastTaxes", Currency::FromUnits(10 * dice.Between(120, 420))},
                    {"LateFee", Currency::FromUnits(45)},
                    {"EscrowBuffer", 2},
                    {"EscrowReviewInterval", 12},
                    {"EscrowReviewPeriods", 12},
                    {"GracePeriod", 15},
                    {"LastEscrowReview", reviewed.ToText()},
                    {"NextEscrowReview", DateAdd(Interval::Year, 1, reviewed).ToText()}});
    return owed;
}

} // namespace

void WriteSampleLoans(SampleBooks& books, const std::vector<SampleBuilding>& buildings) {
    for (std::size_t i = 0; i < buildings.size(); ++i) {
        if (i % 3 == 2) continue; // owned outright
        const Currency owed = Currency::FromDouble(AddLoan(books, buildings[i], i));
        books.rows.Books().Execute("UPDATE Building SET Equity = ? WHERE IdBuilding = ?",
                                   {buildings[i].marketValue - owed, buildings[i].id});
    }
}

} // namespace store
