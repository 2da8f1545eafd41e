#include "shell/ViewTexts.h"

#include <array>

#include <fmt/core.h>

#include "core/KindTable.h"
#include "core/RecordKinds.h"

namespace shell {

namespace {

struct Need {
    core::RecordKind kind;
    std::string_view text;
};

/// The records that must exist before one of a kind can.
constexpr std::array<Need, 5> kNeeds = {{
    {core::kLease, " A lease needs a unit and a tenant."},
    {core::kMortgage, " A mortgage needs a building."},
    {core::kWorkOrder, " A work order needs a unit."},
    {core::kTransaction, " A transaction needs an account or a tenant."},
    {core::kUnit, " A building comes with its first unit."},
}};

std::string_view NeedsOf(core::RecordKind kind) {
    for (const Need& need : kNeeds) {
        if (need.kind == kind) return need.text;
    }
    return {};
}

bool IsFiltered(const EmptyView& view) {
    const ViewFilter& filter = view.filter;
    if (view.kind != core::kTransaction) return filter.status != "All";
    return filter.days != 0 || (filter.field != "None" && filter.item.text != "All");
}

} // namespace

std::string StatusText(core::RecordKind kind, std::int64_t count, const ViewState& state) {
    std::string text = fmt::format("Selected {} {} records", count, core::RecordKindName(kind));
    if (!state.sortField.empty()) {
        text += fmt::format(" sorted by {} [{}]", state.sortField, state.sortOrder);
    }
    return text;
}

std::string NarrowedText(std::int64_t shown, std::int64_t count) {
    if (shown >= count) return {};
    return fmt::format("{} of {} shown", shown, count);
}

std::string EmptyText(const EmptyView& view) {
    const std::string_view plural = core::InfoOf(view.kind).plural;
    if (view.count < 0 && !view.fault.empty()) {
        return fmt::format("The {} can't be read: {}", plural, view.fault);
    }
    if (view.count < 0) {
        return fmt::format("The {} can't be read. Choose \"All\" above, or press F5 to try again.",
                           plural);
    }
    if (view.count > 0) {
        return fmt::format("None of the {} {} has \"{}\" in it. Press Escape to clear the search.",
                           view.count, plural, view.search);
    }
    if (IsFiltered(view)) {
        return fmt::format("No {} meet the choice above. Choose \"All\" to see more.", plural);
    }
    std::string text = fmt::format("There are no {} yet.{} Press Ctrl+N to add the first.", plural,
                                   NeedsOf(view.kind));
    if (view.kind != core::kTransaction && !view.filter.showHidden) {
        text += " Hidden ones appear with \"Show Hidden Items\".";
    }
    return text;
}

std::string WindowTitle(std::string_view companyName, BooksAre books) {
    const bool says = companyName.find("Sample") != std::string_view::npos;
    return fmt::format("Vestrel - {}{}", companyName,
                       books == BooksAre::Sample && !says ? " (Sample)" : "");
}

} // namespace shell
