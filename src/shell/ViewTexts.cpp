#include "shell/ViewTexts.h"

#include <array>

#include <fmt/core.h>

#include "core/RecordKinds.h"

namespace shell {

namespace {

struct Plural {
    std::int16_t kind;
    std::string_view word;
};

constexpr std::array<Plural, 7> kPlurals = {{
    {core::kAccount, "accounts"},
    {core::kLease, "leases"},
    {core::kMortgage, "mortgages"},
    {core::kTenant, "tenants"},
    {core::kWorkOrder, "work orders"},
    {core::kTransaction, "transactions"},
    {core::kUnit, "units"},
}};

std::string_view PluralOf(std::int16_t kind) {
    for (const Plural& plural : kPlurals) {
        if (plural.kind == kind) return plural.word;
    }
    return "records";
}

bool IsFiltered(const EmptyView& view) {
    const ViewFilter& filter = view.filter;
    if (view.kind != core::kTransaction) return filter.status != "All";
    return filter.days != 0 || (filter.field != "None" && filter.item.text != "All");
}

} // namespace

std::string StatusText(std::int16_t kind, std::int64_t count, const ViewState& state) {
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
    const std::string_view plural = PluralOf(view.kind);
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
    std::string text = fmt::format("There are no {} yet. Press Ctrl+N to add the first.", plural);
    if (view.kind != core::kTransaction && !view.filter.showHidden) {
        text += " Hidden ones appear with \"Show Hidden Items\".";
    }
    return text;
}

std::string WindowTitle(std::string_view companyName) {
    return fmt::format("Vestrel - {}", companyName);
}

} // namespace shell
