#include "shell/ViewState.h"

#include <array>

#include "core/RecordKinds.h"
#include "core/Settings.h"

namespace shell {

namespace {

struct Tag {
    core::RecordKind kind;
    std::string_view tag;
};

constexpr std::array<Tag, 7> kTags = {{
    {core::kAccount, "frmKestrom.Account"},
    {core::kLease, "frmKestrom.Lease"},
    {core::kMortgage, "frmKestrom.Mortgage"},
    {core::kTenant, "frmKestrom.Tenant"},
    {core::kWorkOrder, "frmKestrom.WorkOrder"},
    {core::kTransaction, "frmKestrom.Transaction"},
    {core::kUnit, "frmKestrom.Building"},
}};

constexpr std::string_view kAscending = "ASC";
constexpr std::string_view kDescending = "DESC";

/// The registry key of each part of a view's state; each view has a value named after its tag
/// there.
struct Place {
    std::string_view key;
    std::string ViewState::*part;
};

constexpr std::array<Place, 5> kPlaces = {{
    {R"(SOFTWARE\Vestrel\Kestrom\ViewInfo)", &ViewState::view},
    {R"(SOFTWARE\Vestrel\Kestrom\SortOrder)", &ViewState::sortOrder},
    {R"(SOFTWARE\Vestrel\Kestrom\PrevOrder)", &ViewState::prevOrder},
    {R"(SOFTWARE\Vestrel\Kestrom\SortField)", &ViewState::sortField},
    {R"(SOFTWARE\Vestrel\Kestrom\PrevField)", &ViewState::prevField},
}};

void MendOrder(std::string& order) {
    if (order != kDescending) order = kAscending;
}

void AppendSort(std::string& text, const std::string& field, const std::string& order) {
    if (!text.empty()) text += ", ";
    text.append("[").append(field).append("] ").append(order);
}

} // namespace

std::string_view ViewTag(core::RecordKind kind) {
    for (const Tag& tag : kTags) {
        if (tag.kind == kind) return tag.tag;
    }
    return {};
}

ViewState LoadViewState(std::string_view tag) {
    ViewState state;
    for (const Place& place : kPlaces) {
        state.*place.part = core::GetRegString(place.key, tag, state.*place.part);
    }
    MendOrder(state.sortOrder);
    MendOrder(state.prevOrder);
    return state;
}

std::vector<platform::RegistryText> ViewStateTexts(std::string_view tag, const ViewState& state) {
    std::vector<platform::RegistryText> texts;
    for (const Place& place : kPlaces)
        texts.push_back({std::string(place.key), std::string(tag), state.*place.part});
    return texts;
}

void SaveViewState(std::string_view tag, const ViewState& state) {
    core::SetRegStrings(ViewStateTexts(tag, state));
}

void ClickHeader(ViewState& state, std::string_view caption) {
    if (state.sortField == caption) {
        state.sortOrder = state.sortOrder == kAscending ? kDescending : kAscending;
        return;
    }
    state.prevField = state.sortField;
    state.prevOrder = state.sortOrder;
    state.sortField = caption;
}

std::string SortText(const ViewState& state,
                     const std::function<bool(std::string_view caption)>& hasColumn) {
    std::string text;
    if (state.sortField.empty()) return text;
    if (hasColumn(state.sortField)) AppendSort(text, state.sortField, state.sortOrder);
    if (!state.prevField.empty() && hasColumn(state.prevField)) {
        AppendSort(text, state.prevField, state.prevOrder);
    }
    return text;
}

} // namespace shell
