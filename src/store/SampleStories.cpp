#include "store/SampleStories.h"

namespace store {

namespace {

using enum PayHabit;
using Clause = SampleClause;
using Turn = SampleTurn;

constexpr LeasePlan kRenewing[] = {{24, 1, "Month(s)", 12, "Renew", OnTime, Clause::Discount}};
constexpr LeasePlan kBecomesMonthly[] = {{24, 1, "Month(s)", 12, "MTM", FewDaysLate, Clause::Pets}};
constexpr LeasePlan kExpiredAndLetAgain[] = {{24, 15, "Month(s)", 12, "Expire", OnTime},
                                             {11, 1, "Month(s)", 12, "Renew", FewDaysLate}};
constexpr LeasePlan kMonthly[] = {{20, 1, "MTM", 1, "MTM", Chronic, Clause::DailyFee}};
constexpr LeasePlan kPending[] = {{-1, 1, "Month(s)", 12, "Renew", OnTime}};
constexpr LeasePlan kSubsidised[] = {
    {24, 1, "Month(s)", 12, "Renew", OnTime, Clause::AccountSubsidy}};
constexpr LeasePlan kStoppedPaying[] = {
    {18, 1, "Month(s)", 12, "MTM", StoppedPaying, Clause::DailyFee, Turn::StopsPaying, 3}};
constexpr LeasePlan kOption[] = {{24, 1, "Month(s)", 36, "Renew", OnTime, Clause::Option}};
constexpr LeasePlan kWeekly[] = {{10, 3, "WTW", 1, "WTW", FewDaysLate}};
constexpr LeasePlan kNotice[] = {
    {22, 1, "Month(s)", 12, "MTM", OnTime, Clause::None, Turn::NoticeNow}};
constexpr LeasePlan kExpiringSoon[] = {
    {12, 1, "Month(s)", 12, "Expire", OnTime, Clause::Pets, Turn::ExpiringSoon}};
constexpr LeasePlan kBroken[] = {
    {19, 1, "Month(s)", 12, "Renew", Chronic, Clause::None, Turn::Broken, 3}};
constexpr LeasePlan kPaidAhead[] = {{24, 1, "Month(s)", 12, "Renew", PaidAhead, Clause::Discount}};
constexpr LeasePlan kYearly[] = {{24, 1, "Year(s)", 1, "Renew", OnTime}};
constexpr LeasePlan kHalfAYearByWeeks[] = {{8, 6, "Week(s)", 26, "WTW", OnTime}};
constexpr LeasePlan kLeftAndLetAgain[] = {
    {24, 1, "Month(s)", 12, "MTM", OnTime, Clause::None, Turn::NoticeGiven, 8},
    {6, 10, "Month(s)", 12, "Renew", FewDaysLate, Clause::SubLet}};
constexpr LeasePlan kExpired[] = {{23, 1, "Month(s)", 18, "Expire", OnTime}};
constexpr LeasePlan kHelpedByPerson[] = {
    {16, 1, "Month(s)", 12, "MTM", StoppedPaying, Clause::TenantSubsidy, Turn::Behind, 12}};
constexpr LeasePlan kMonthlyWithoutOption[] = {
    {14, 1, "MTM", 0, "", StoppedPaying, Clause::None, Turn::Behind, 2}};
constexpr LeasePlan kWarned[] = {
    {15, 1, "Month(s)", 12, "Renew", StoppedPaying, Clause::ShortPatience, Turn::StopsPaying, 1}};
constexpr LeasePlan kYearByWeeks[] = {{24, 2, "Week(s)", 52, "Renew", OnTime, Clause::Pets}};
constexpr LeasePlan kShortTerm[] = {{5, 1, "Month(s)", 6, "Renew", FewDaysLate, Clause::DailyFee}};

constexpr UnitStory kStories[] = {
    {kRenewing},
    {kBecomesMonthly},
    {kExpiredAndLetAgain},
    {kMonthly},
    {kPending},
    {kSubsidised},
    {kStoppedPaying},
    {kOption},
    {kWeekly},
    {kNotice},
    {kExpiringSoon},
    {kBroken},
    {kPaidAhead},
    {kYearly},
    {kHalfAYearByWeeks},
    {kLeftAndLetAgain},
    {kExpired},
    {kHelpedByPerson},
    {kMonthlyWithoutOption},
    {kWarned},
    {{}, "Hold"}, // being renovated
    {{}},
    {kYearByWeeks},
    {kShortTerm},
};

} // namespace

std::span<const UnitStory> UnitStories() {
    return kStories;
}

} // namespace store
