#include "store/SampleLeases.h"

#include <algorithm>
#include <string>

#include "store/SampleStories.h"

namespace store {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

constexpr int kNoticeDays = 30;
constexpr std::string_view kVacant = "Avaliable"; // as units are written

Date MonthsAgo(Date today, int months, int day = 1) {
    const Date first = DateAdd(Interval::Month, -months, Date(today.Year(), today.Month(), 1));
    return DateAdd(Interval::Day, day - 1, first);
}

/// The dates of one lease.
struct LeaseDates {
    Date begins;
    SampleHabit habit;
};

LeaseDates PlanDates(SampleBooks& books, const LeasePlan& plan) {
    const Date today = books.today;
    LeaseDates dates;
    dates.habit.habit = plan.habit;
    dates.begins = MonthsAgo(today, plan.monthsAgo, plan.day);
    switch (plan.turn) {
        case SampleTurn::None:
            break;
        case SampleTurn::NoticeNow:
            dates.habit.givesNotice = DateAdd(Interval::Day, -12, today);
            break;
        case SampleTurn::NoticeGiven:
            dates.habit.givesNotice = MonthsAgo(today, plan.turnAgo, 4);
            break;
        case SampleTurn::Broken:
            dates.habit.breaks = MonthsAgo(today, plan.turnAgo, 12);
            break;
        case SampleTurn::StopsPaying:
            dates.habit.stopsPaying = MonthsAgo(today, plan.turnAgo);
            break;
        case SampleTurn::Behind: {
            const Date due = DateAdd(Interval::Day, -plan.turnAgo, today);
            dates.begins = DateAdd(Interval::Month, -plan.monthsAgo, due);
            // The due day can be some days earlier by now: months without a 31st move it forward
            // permanently.
            dates.habit.stopsPaying = DateAdd(Interval::Day, -5, due);
            break;
        }
        case SampleTurn::ExpiringSoon:
            dates.begins = DateAdd(Interval::Month, -plan.term, DateAdd(Interval::Day, 25, today));
            break;
    }
    const Date signedOn = DateAdd(Interval::Day, -books.dice.Between(5, 25), dates.begins);
    dates.habit.created = std::min(signedOn, DateAdd(Interval::Day, -3, today));
    return dates;
}

/// Returns the plan with its month and day changed for later rounds of the stories, if nothing
/// depends on them.
LeasePlan Varied(SampleDice& dice, LeasePlan plan, bool alone) {
    constexpr int kDays[] = {1, 1, 1, 5, 10, 15};
    const bool free = alone && plan.turn == SampleTurn::None && plan.monthsAgo >= 12 &&
                      plan.expireOption != "Expire" && plan.termType == "Month(s)";
    if (!free) return plan;
    plan.monthsAgo -= dice.Between(0, 9);
    plan.day = dice.Pick(kDays);
    return plan;
}

/// Returns the rent for one period of a lease, from the rent for a month.
Currency PeriodRent(Currency monthly, std::string_view termType) {
    const std::int64_t units = monthly.Scaled() / Currency::kScale;
    if (termType == "Week(s)" || termType == "WTW") return Currency::FromUnits(units * 3 / 65 * 5);
    if (termType == "Year(s)") return Currency::FromUnits(units * 11);
    return monthly;
}

void SetField(SampleBooks& books, std::int32_t idLease, std::string_view assignments,
              std::initializer_list<platform::Value> values) {
    std::vector<platform::Value> parameters(values);
    parameters.emplace_back(idLease);
    books.rows.Books().Execute(
        "UPDATE Lease SET " + std::string(assignments) + " WHERE IdLease = ?", parameters);
}

void AddClause(SampleBooks& books, std::int32_t idLease, const LeasePlan& plan,
               const SampleUnit& unit, Date begins) {
    SampleDice& dice = books.dice;
    const Currency share = Currency::FromUnits(25 * dice.Between(6, 14));
    switch (plan.clause) {
        case SampleClause::None:
            break;
        case SampleClause::Discount:
            SetField(books, idLease, "Discount = ?, DiscountDays = 5", {Currency::FromUnits(25)});
            break;
        case SampleClause::DailyFee:
            SetField(books, idLease, "DailyFee = ?, DailyDays = 10", {Currency::FromUnits(5)});
            break;
        case SampleClause::AccountSubsidy:
            SetField(books, idLease, "Subs = True, SubsAmt = ?, SubsidyType = 1, SubsidyId = ?",
                     {share, books.accounts.housingAid});
            break;
        case SampleClause::TenantSubsidy:
            SetField(books, idLease, "Subs = True, SubsAmt = ?, SubsidyType = 5, SubsidyId = ?",
                     {share, AddSampleTenant(books, unit.areaCode, "Approved")});
            break;
        case SampleClause::Option:
            SetField(
                books, idLease,
                "[Option] = True, OptionPrice = ?, OptionExpireDate = ?, OptionRenews = True, "
                "OptionCredit = ?",
                {Currency::FromUnits(1000 * dice.Between(170, 260)),
                 DateAdd(Interval::Month, plan.term, begins).ToText(), Currency::FromUnits(100)});
            break;
        case SampleClause::Pets:
            SetField(books, idLease, "Pets = True, PetList = ?",
                     {dice.OneIn(2) ? "One cat" : "One dog, below 20 pounds"});
            break;
        case SampleClause::SubLet:
            SetField(books, idLease, "SubLet = True", {});
            break;
        case SampleClause::ShortPatience:
            SetField(books, idLease, "NoticeDays = 10, EvictDays = 75", {});
            break;
    }
}

std::int32_t AddLease(SampleBooks& books, const SampleUnit& unit, std::int32_t idTenant,
                      const LeasePlan& plan, const LeaseDates& dates) {
    const std::string begins = dates.begins.ToText();
    const Currency rent = PeriodRent(unit.rent, plan.termType);
    return books.rows.Add("Lease",
                          {{"IdTenant", idTenant},
                           {"IdUnit", unit.id},
                           {"Status", "Pending"},
                           {"RentStatus", "OK"},
                           {"DateCreated", dates.habit.created.ToText()},
                           {"DateActive", begins},
                           {"DateRenewed", begins},
                           {"DateNextDue", begins},
                           {"Term", plan.term},
                           {"TermType", plan.termType},
                           {"ExpireOption", plan.expireOption},
                           {"NoticeDays", kNoticeDays},
                           {"Rent", rent},
                           {"RentAccount", books.accounts.operatingBank},
                           {"DepositAccount", books.accounts.depositBank},
                           {"OneTimeFee", Currency::FromUnits(5 * books.dice.Between(5, 12))},
                           {"OneTimeDays", 5},
                           {"DailyDays", 10},
                           {"EvictDays", 45},
                           {"BreakFee", unit.rent},
                           {"Residents", std::to_string(books.dice.Between(1, 4))}});
}

/// Saving a lease for the first time makes its unit and tenant taken immediately, whenever it
/// begins.
void TakeUnit(SampleBooks& books, const SampleUnit& unit, std::int32_t idTenant) {
    platform::Connection& connection = books.rows.Books();
    connection.Execute("UPDATE Unit SET Status = 'Leased' WHERE IdUnit = ?", {unit.id});
    connection.Execute("UPDATE Tenant SET Status = 'Current' WHERE IdTenant = ?", {idTenant});
}

bool PaysBadly(PayHabit habit) {
    return habit == PayHabit::Chronic || habit == PayHabit::StoppedPaying;
}

void LetUnit(SampleBooks& books, SampleCast& cast, const SampleUnit& unit, const UnitStory& story,
             bool firstRound) {
    if (story.status != kVacant) {
        books.rows.Books().Execute("UPDATE Unit SET Status = ? WHERE IdUnit = ?",
                                   {story.status, unit.id});
    }
    for (const LeasePlan& told : story.leases) {
        const bool first = &told == &story.leases.front();
        const LeasePlan plan =
            firstRound ? told : Varied(books.dice, told, story.leases.size() == 1);
        LeaseDates dates = PlanDates(books, plan);
        const std::int32_t idTenant = AddSampleTenant(books, unit.areaCode, "Approved");
        dates.habit.idLease = AddLease(books, unit, idTenant, plan, dates);
        AddClause(books, dates.habit.idLease, plan, unit, dates.begins);
        if (first) TakeUnit(books, unit, idTenant);
        if (PaysBadly(plan.habit)) AddSampleIncidents(books, idTenant);
        cast.leases.push_back(dates.habit);
    }
}

} // namespace

SampleCast WriteSampleLeases(SampleBooks& books, const std::vector<SampleBuilding>& buildings) {
    SampleCast cast;
    const std::span<const UnitStory> stories = UnitStories();
    std::size_t index = 0;
    for (const SampleBuilding& building : buildings) {
        for (const SampleUnit& unit : building.units) {
            LetUnit(books, cast, unit, stories[index % stories.size()], index < stories.size());
            ++index;
        }
    }
    cast.begins = books.today;
    for (const SampleHabit& lease : cast.leases)
        cast.begins = std::min(cast.begins, lease.created);
    return cast;
}

} // namespace store
