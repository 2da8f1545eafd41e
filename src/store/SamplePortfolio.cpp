#include "store/SamplePortfolio.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "store/SampleAccounts.h"
#include "store/SampleLeases.h"
#include "store/SampleLoans.h"
#include "store/SampleUpkeep.h"

namespace store {

using platform::Currency;
using platform::DateAdd;
using platform::Interval;

namespace {

constexpr std::uint64_t kSeed = 19'640'229;

void AddDepositTemplates(SampleBooks& books, const std::vector<SampleBuilding>& buildings) {
    SampleWriter& rows = books.rows;
    rows.Add("Deposit", {{"IsGlobal", true},
                         {"Description", "Damage Deposit"},
                         {"Amount", Currency::FromUnits(600)}});
    rows.Add(
        "Deposit",
        {{"IsGlobal", true}, {"Description", "Key Deposit"}, {"Amount", Currency::FromUnits(25)}});
    for (const SampleBuilding& building : buildings) {
        if (building.units.size() == 4) {
            rows.Add("Deposit", {{"IdBuilding", building.id},
                                 {"Description", "Garage Remote"},
                                 {"Amount", Currency::FromUnits(40)}});
        } else if (building.units.size() == 2) {
            rows.Add("Deposit", {{"IdUnit", building.units.back().id},
                                 {"Description", "Furniture Deposit"},
                                 {"Amount", Currency::FromUnits(250)}});
        }
    }
}

/// Returns the latest 5th of a month: the event then runs on each following one.
std::string LastFifth(platform::Date today) {
    constexpr unsigned kFifth = 5;
    const platform::Date fifth(today.Year(), today.Month(), kFifth);
    return (fifth <= today ? fifth : DateAdd(Interval::Month, -1, fifth)).ToText();
}

/// Adds the events, disabled until the sample's two years are over.
void AddEvents(SampleBooks& books, const SampleBuilding& building) {
    const SampleAccounts& accounts = books.accounts;
    const std::string today = books.today.ToText();
    books.rows.Add("AutoEvent", {{"EventType", 1},
                                 {"Description", "Grounds care"},
                                 {"Alert", true},
                                 {"IntervalPeriod", 5},
                                 {"IntervalType", 4},
                                 {"EventAction", 1},
                                 {"TaxCategory", "Cleaning and Maint"},
                                 {"IEN", 1},
                                 {"LastRun", LastFifth(books.today)},
                                 {"DebitType", kAccountKind},
                                 {"CreditType", kAccountKind},
                                 {"DebitId", accounts.operatingBank},
                                 {"CreditId", accounts.landscaper},
                                 {"IdBuilding", building.id},
                                 {"Amount", Currency::FromUnits(180)}});
    books.rows.Add("AutoEvent", {{"EventType", 1},
                                 {"Description", "Trash service"},
                                 {"IntervalPeriod", 1},
                                 {"IntervalType", 3},
                                 {"EventAction", 1},
                                 {"TaxCategory", "Utilities"},
                                 {"IEN", 1},
                                 {"LastRun", today},
                                 {"DebitType", kAccountKind},
                                 {"CreditType", kAccountKind},
                                 {"DebitId", accounts.operatingBank},
                                 {"CreditId", accounts.utilities.back()},
                                 {"Amount", Currency::FromScaled(642'500)}});
    books.rows.Add("AutoEvent", {{"EventType", 1},
                                 {"Description", "Change the furnace filters"},
                                 {"Alert", true},
                                 {"IntervalPeriod", 3},
                                 {"IntervalType", 3},
                                 {"LastRun", today}});
    books.rows.Add("AutoEvent", {{"EventType", 2},
                                 {"Description", "Housing assistance has paid"},
                                 {"Alert", true},
                                 {"TriggerType", kAccountKind},
                                 {"TriggerID", accounts.housingAid},
                                 {"TriggerTaxCategory", "Rent Subsidy Payment"}});
}

void AddAlerts(SampleBooks& books) {
    const auto add = [&](int daysAgo, std::string_view text) {
        books.rows.Add("Alerts",
                       {{"EntryDate", DateAdd(Interval::Day, -daysAgo, books.today).ToText()},
                        {"Description", text}});
    };
    add(2, "Smoke detectors are tested in all units this month.");
    add(0, "Welcome: these books are a sample, made to be tried out.");
}

void NameCompany(SampleBooks& books) {
    const SampleAccounts& accounts = books.accounts;
    books.rows.Books().Execute(
        "UPDATE Configuration SET CompanyName = ?, Address = ?, City = ?, State = ?, Zip = ?, "
        "DefaultCounty = ?, DefaultState = ?, DefaultRentAccount = ?, DefaultDepositAccount = ?, "
        "DefaultMortgageAccount = ?, DefaultMortgagee = ?, DefaultCar = ?",
        {"Marchetti Rentals (Sample Books)", "210 Prospect Hill Road", "Eugene", "OR", "97401",
         "Lane", "OR", accounts.operatingBank, accounts.depositBank, accounts.operatingBank,
         accounts.mortgagees.front(), kSampleCar});
}

} // namespace

SampleCast WriteSampleRecords(platform::Connection& connection, const SampleOptions& options) {
    platform::UnitOfWork work(connection);
    SampleWriter rows(connection, options.nextId);
    SampleDice dice(kSeed);
    SampleBooks books{rows, dice, options.today, {}};
    WriteSampleAccounts(books);
    const std::vector<SampleBuilding> buildings = WriteSampleProperty(books, options.units);
    std::vector<SampleLoan> loans = WriteSampleLoans(books, buildings);
    AddDepositTemplates(books, buildings);
    SampleCast cast = WriteSampleLeases(books, buildings);
    cast.begins = std::min(cast.begins, SampleLoansBegin(options.today));
    cast.loans = std::move(loans);
    AddSampleApplicants(books);
    WriteSampleUpkeep(books, buildings);
    if (!buildings.empty()) AddEvents(books, buildings.front());
    AddAlerts(books);
    NameCompany(books);
    work.Commit();
    return cast;
}

} // namespace store
