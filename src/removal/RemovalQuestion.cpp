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

struct PlainQuestion {
    std::int16_t kind;
    std::string_view text;
};

constexpr std::array<PlainQuestion, 21> kPlainQuestions = {{
    {core::kLease, "Delete selected Lease?"},
    {core::kMortgage, "Delete selected Mortgage?"},
    {core::kWorkOrder, "Delete selected work order?"},
    {core::kIncident, "Delete selected Incident?"},
    {core::kAppliance, "Delete selected Appliance?"},
    {core::kRoom, "Delete selected room?"},
    {core::kTransaction, "Delete selected transaction?"},
    {core::kMileage, "Delete selected Mileage entry?"},
    {core::kOwner, "Delete selected Owner?"},
    {core::kManager, "Delete selected Manager?"},
    {core::kAutoEvent, "Delete selected Auto Event?"},
    {core::kContent, "Delete selected Content?"},
    {core::kSvcContract, "Delete selected service contract?"},
    {core::kMortgageLog, "Delete selected Mortgage charge?"},
    {core::kWorkOrderHistory, "Delete selected Work Order History?"},
    {core::kFileObject, "Delete selected file link?"},
    {core::kDocument, "Delete selected Document?"},
    {core::kRentLog, "Delete selected item?"},
    {core::kBuilding,
     "Removing a building will also remove all units associated to the building, and all\n"
     "leases for these units and related records.\n\n"
     "Do you wish to continue?"},
    {kAnalysis, "Delete selected Analysis?"},
    {kNoteAnalysis, "Delete selected Note Analysis?"},
}};

std::string_view PlainText(std::int16_t kind) {
    for (const PlainQuestion& question : kPlainQuestions) {
        if (question.kind == kind) return question.text;
    }
    return {};
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
