#include "removal/RemovalQuestion.h"

#include <array>
#include <span>
#include <string_view>

#include <fmt/core.h>

#include "core/RecordKinds.h"
#include "core/Session.h"
#include "removal/RemovalStatements.h"

namespace removal {

namespace {

/// A table in which the records that go along are counted, by its field that points to the one.
struct Counted {
    std::string_view table;
    std::string_view field;
    std::string_view words;
};

constexpr std::array<Counted, 2> kOfAccount = {{
    {"ManagerLink", "IdAccount", " Management Link(s) to Properties"},
    {"OwnerLink", "IdAccount", " Owner Link(s) to Properties"},
}};

constexpr std::array<Counted, 1> kOfTenant = {{{"Lease", "IdTenant", " Lease(s)"}}};

constexpr std::array<Counted, 4> kOfUnit = {{
    {"Room", "IdUnit", " Room(s)"},
    {"Appliance", "IdUnit", " Appliance(s)"},
    {"Content", "IdUnit", " Content(s)"},
    {"Lease", "IdUnit", " Lease(s)"},
}};

/// `thing` names the record; of a tenant, the references are said to be an account's.
std::string CountedText(std::string_view thing, std::string_view referred,
                        std::span<const Counted> counted, std::int32_t id) {
    std::string list;
    for (const Counted& one : counted) {
        const std::int32_t count =
            core::CountRecords(one.table, fmt::format("{} = {}", one.field, id));
        if (count != 0) list += fmt::format("{}{}\n", count, one.words);
    }
    if (list.empty()) {
        return fmt::format(
            "Removing this {} will cause any references to it to be lost.\n\n"
            "Do you wish to continue?",
            thing);
    }
    return fmt::format(
        "This {} is linked to the following critical items:\n\n{}"
        "These items will be removed. Also, any other references to this {}.\n"
        "will be lost.\n\n"
        "Do you wish to continue?",
        thing, list, referred);
}

std::string_view PlainText(std::int16_t kind) {
    switch (kind) {
        case core::kLease:
            return "Delete selected Lease?";
        case core::kMortgage:
            return "Delete selected Mortgage?";
        case core::kWorkOrder:
            return "Delete selected work order?";
        case core::kIncident:
            return "Delete selected Incident?";
        case core::kAppliance:
            return "Delete selected Appliance?";
        case core::kRoom:
            return "Delete selected room?";
        case core::kTransaction:
            return "Delete selected transaction?";
        case core::kMileage:
            return "Delete selected Mileage entry?";
        case core::kOwner:
            return "Delete selected Owner?";
        case core::kManager:
            return "Delete selected Manager?";
        case core::kAutoEvent:
            return "Delete selected Auto Event?";
        case core::kContent:
            return "Delete selected Content?";
        case core::kSvcContract:
            return "Delete selected service contract?";
        case core::kMortgageLog:
            return "Delete selected Mortgage charge?";
        case core::kWorkOrderHistory:
            return "Delete selected Work Order History?";
        case core::kFileObject:
            return "Delete selected file link?";
        case core::kDocument:
            return "Delete selected Document?";
        case core::kRentLog:
            return "Delete selected item?";
        case core::kBuilding:
            return "Removing a building will also remove all units associated to the building, "
                   "and all\nleases for these units and related records.\n\n"
                   "Do you wish to continue?";
        case kAnalysis:
            return "Delete selected Analysis?";
        case kNoteAnalysis:
            return "Delete selected Note Analysis?";
        default:
            return {};
    }
}

} // namespace

std::optional<RemovalQuestion> QuestionBefore(std::int16_t kind, std::int32_t id) {
    constexpr auto kTitle = "Confirm Delete";
    switch (kind) {
        case core::kAccount:
            return RemovalQuestion{kTitle, CountedText("account", "account", kOfAccount, id)};
        case core::kTenant:
            return RemovalQuestion{"Confirm Removal",
                                   CountedText("tenant", "account", kOfTenant, id)};
        case core::kUnit:
            return RemovalQuestion{kTitle, CountedText("unit", "unit", kOfUnit, id)};
        default:
            break;
    }
    const std::string_view text = PlainText(kind);
    if (text.empty()) return std::nullopt;
    return RemovalQuestion{kTitle, std::string(text)};
}

} // namespace removal
