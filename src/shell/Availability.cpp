#include "shell/Availability.h"

#include "core/RecordKinds.h"

namespace shell {

namespace {

constexpr std::string_view kNoList = "Choose a list of records first.";
constexpr std::string_view kNoRecord = "Select a record first.";
constexpr std::string_view kManyRecords = "Select only one record.";
constexpr std::string_view kNoEditor = "These records can't be edited in this version.";
constexpr std::string_view kReadOnly = "These books are open for reading only.";

std::string_view FirstOf(std::string_view one, std::string_view other) {
    return one.empty() ? other : one;
}

} // namespace

Availability EnableEditButtons(const WindowState& state) {
    const std::string_view list = state.kind == core::kAlert ? kNoList : std::string_view();
    const std::string_view editor = state.hasEditor ? std::string_view() : kNoEditor;
    const std::string_view readOnly = state.readOnly ? kReadOnly : std::string_view();
    const std::string_view rows = state.selectedRows > 0 ? std::string_view() : kNoRecord;
    const std::string_view one = state.selectedRows > 1  ? kManyRecords
                                 : state.selectedId != 0 ? std::string_view()
                                                         : kNoRecord;
    const std::string_view record = FirstOf(list, one);
    return {.add = FirstOf(list, FirstOf(editor, readOnly)),
            .list = list,
            .edit = FirstOf(record, editor),
            .record = record,
            .change = FirstOf(record, readOnly),
            .rows = FirstOf(list, rows)};
}

ExtraItems ExtraItemsOf(core::RecordKind kind) {
    return {.refreshSummary = kind == core::kAlert,
            .payRent = kind == core::kLease,
            .payMortgage = kind == core::kMortgage,
            .copy = kind == core::kTransaction || kind == core::kUnit};
}

} // namespace shell
