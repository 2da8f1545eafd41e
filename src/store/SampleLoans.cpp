#include "store/SampleLoans.h"

#include <cmath>

#include "platform/values/Conversions.h"
#include "store/SampleWords.h"

namespace store {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

constexpr int kGraceDays = 15;

/// A loan paid off by equal monthly payments, or by its interest only.
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

    /// Returns the balance that is owed once `paid` payments are made.
    double Balance(int paid) const {
        if (interestOnly) return principal;
        const double growth = std::pow(1 + rate / 12, paid);
        return principal * growth - Payment() * (growth - 1) / (rate / 12);
    }
};

/// Returns the rate of every period, as the books keep it.
std::string RateList(const Loan& loan) {
    const std::string rate = platform::NumberToText(loan.rate);
    std::string list = rate;
    for (int i = 1; i < loan.periods; ++i)
        list += "," + rate;
    return list;
}

/// Returns the last review of escrow, which happens once a year: for some mortgages it is due
/// within weeks.
Date LastReview(SampleBooks& books, std::size_t index) {
    const int daysUntilNext =
        index % 4 == 0 ? books.dice.Between(5, 25) : books.dice.Between(60, 330);
    return DateAdd(Interval::Year, -1, DateAdd(Interval::Day, daysUntilNext, books.today));
}

/// Lenders accept payments in the first days after the due day; one in six borrowers needs all of
/// these days and more, and one hasn't made this month's payment yet.
SampleLoan PlanPayments(const SampleBooks& books, std::size_t index) {
    constexpr int kPastGrace = kGraceDays + 4;
    SampleLoan plan;
    plan.daysAfterDue = index % 6 == 4 ? kPastGrace : static_cast<int>(index % 3);
    if (index == 1) plan.stopsPaying = Date(books.today.Year(), books.today.Month(), 1);
    return plan;
}

/// Adds a loan; returns it with the balance that it leaves on the building.
std::pair<SampleLoan, double> AddLoan(SampleBooks& books, const SampleBuilding& building,
                                      std::size_t index) {
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

    const int paid = dice.Between(4, 86);
    const Date nextDue = SampleLoansBegin(books.today);
    const double owed = loan.Balance(paid);
    const double interest = owed * loan.rate / 12;
    const Date reviewed = LastReview(books, index);
    const std::int32_t mortgagee = dice.Pick(accounts.mortgagees);
    const std::string number = "M-" + SampleDigits(dice, 7);
    SampleLoan plan = PlanPayments(books, index);
    plan.idBuilding = building.id;
    plan.idMortgage = books.rows.Add(
        "Mortgage", {{"IdBuilding", building.id},
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
                     {"DateUpdated", DateAdd(Interval::Day, -1, nextDue).ToText()},
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
                     {"xRate", RateList(loan)},
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
                     {"GracePeriod", kGraceDays},
                     {"LastEscrowReview", reviewed.ToText()},
                     {"NextEscrowReview", DateAdd(Interval::Year, 1, reviewed).ToText()}});
    return {plan, owed};
}

} // namespace

Date SampleLoansBegin(Date today) {
    return DateAdd(Interval::Month, -24, Date(today.Year(), today.Month(), 1));
}

std::vector<SampleLoan> WriteSampleLoans(SampleBooks& books,
                                         const std::vector<SampleBuilding>& buildings) {
    std::vector<SampleLoan> loans;
    for (std::size_t i = 0; i < buildings.size(); ++i) {
        if (i % 3 == 2) continue; // owned outright
        const auto [loan, owed] = AddLoan(books, buildings[i], i);
        books.rows.Books().Execute(
            "UPDATE Building SET Equity = ? WHERE IdBuilding = ?",
            {buildings[i].marketValue - Currency::FromDouble(owed), buildings[i].id});
        loans.push_back(loan);
    }
    return loans;
}

} // namespace store
