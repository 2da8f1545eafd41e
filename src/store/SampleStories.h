#pragma once

#include <span>
#include <string_view>

#include "store/SamplePortfolio.h"

namespace store {

/// How a lease of the sample comes to its end, if it doesn't go by its term.
enum class SampleTurn {
    None,
    NoticeNow,    ///< the tenant gave notice days ago and still lives there
    NoticeGiven,  ///< gave notice `turnAgo` months ago and left
    Broken,       ///< broken `turnAgo` months ago
    StopsPaying,  ///< from the beginning of the month `turnAgo` months ago on
    Behind,       ///< its last rent fell due `turnAgo` days ago and isn't paid
    ExpiringSoon, ///< began so that its term is over in a few weeks
};

/// Further terms of a lease.
enum class SampleClause {
    None,
    Discount,
    DailyFee,
    AccountSubsidy, ///< an office pays a part
    TenantSubsidy,  ///< another tenant pays a part
    Option,         ///< to buy, with a credit for each rent paid
    Pets,
    SubLet,
    ShortPatience, ///< warned after ten days
};

/// The plan of one lease. It begins on `day` of the month that was `monthsAgo` months ago; -1 is
/// the next month.
struct LeasePlan {
    int monthsAgo = 24;
    int day = 1;
    std::string_view termType;
    int term = 12;
    std::string_view expireOption;
    PayHabit habit = PayHabit::OnTime;
    SampleClause clause = SampleClause::None;
    SampleTurn turn = SampleTurn::None;
    int turnAgo = 0;
};

/// The story of one unit: its leases, one after the other; none for a unit that was never let.
struct UnitStory {
    std::span<const LeasePlan> leases;
    /// The unit's status before its first lease is saved.
    std::string_view status = "Avaliable";
};

/// Returns the stories of the units of the sample; after the last one they begin again.
std::span<const UnitStory> UnitStories();

} // namespace store
