#include "records/OwnerLinkRules.h"

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace records {

namespace {

/// Returns the percentage in a text. Text that isn't a number counts as 0, and a number that
/// doesn't fit as infinity.
double PercentOf(const std::string& text) {
    try {
        return platform::TryParseNumber(text).value_or(0);
    } catch (const platform::OverflowError&) {
        return 101;
    }
}

bool HasOtherLink(const OwnerEntry& entry) {
    return core::Exists(
        "SELECT IdOwnerLink FROM OwnerLink WHERE IdOwnerLink <> ? "
        "AND (IdBuilding = ?) AND (IdAccount = ?)",
        {entry.idOwnerLink, entry.idBuilding, entry.idAccount});
}

void TellTotal(std::int32_t idBuilding) {
    const auto total = platform::AsOr0<double>(core::ReadValue(
        "SELECT SUM(Percent) AS TotalPercent FROM OwnerLink WHERE IdBuilding = ?", {idBuilding}));
    if (total == 100) return;
    platform::TheDialogs().ShowMessage("Notice",
                                       "Note: the total ownership for this building is currently " +
                                           platform::NumberToText(total) + "%",
                                       platform::Icon::Information);
}

bool HasPrimary(std::int32_t idBuilding) {
    return core::Exists(
        "SELECT IdOwnerLink FROM OwnerLink WHERE IdBuilding = ? AND IsPrimary = True",
        {idBuilding});
}

} // namespace

std::vector<std::string> OwnerErrors(const OwnerEntry& entry) {
    std::vector<std::string> lines;
    if (entry.idBuilding == 0) lines.emplace_back("A building must be selected.");
    if (entry.idAccount == 0) lines.emplace_back("An owner must be selected.");
    // Written as a negation so that NaN is out of range too.
    const double percent = PercentOf(entry.percent);
    const bool isShare = percent >= 1 && percent <= 100;
    if (!isShare) {
        lines.emplace_back("Percentage owned must be between 1 and 100 percent.");
    }
    if (HasOtherLink(entry)) {
        lines.emplace_back("A duplicate record for this building and owner already exist.");
    }
    return lines;
}

PrimaryMark SettlePrimary(std::int32_t idBuilding, std::int32_t idBuildingBefore,
                          std::int32_t idOwnerLink, PrimaryMark entered) {
    const bool isMoved = idBuildingBefore != 0 && idBuildingBefore != idBuilding;
    if (isMoved && !HasPrimary(idBuildingBefore)) {
        core::Execute(
            "UPDATE OwnerLink SET IsPrimary = True WHERE IdOwnerLink = "
            "(SELECT TOP 1 IdOwnerLink FROM OwnerLink WHERE IdBuilding = ?)",
            {idBuildingBefore});
    }
    if (entered == PrimaryMark::Yes) {
        core::Execute(
            "UPDATE OwnerLink SET IsPrimary = False WHERE IdBuilding = ? AND IdOwnerLink <> ?",
            {idBuilding, idOwnerLink});
        return PrimaryMark::Yes;
    }
    if (HasPrimary(idBuilding)) return PrimaryMark::No;
    core::Execute("UPDATE OwnerLink SET IsPrimary = True WHERE IdOwnerLink = ?", {idOwnerLink});
    return PrimaryMark::ByDefault;
}

void TellOwnership(std::int32_t idBuilding, PrimaryMark mark) {
    TellTotal(idBuilding);
    if (mark != PrimaryMark::ByDefault) return;
    platform::TheDialogs().ShowMessage(
        "Note:",
        "There are no other owners for this building specified as primary, so this\n"
        "one will automatically be set as primary. If you add another owner and set\n"
        "it as primary this will be overridden.",
        platform::Icon::Information);
}

} // namespace records
