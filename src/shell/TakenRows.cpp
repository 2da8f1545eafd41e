#include "shell/TakenRows.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include <nlohmann/json.hpp>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "shell/TakeBack.h"

namespace shell {

namespace {

/// Returns the text of a field of a row that was taken back; empty if it can't be read.
std::string TextIn(const nlohmann::json& content, const char* field) {
    if (!content.is_object()) return {};
    const auto found = content.find(field);
    return found == content.end() || !found->is_string() ? std::string()
                                                         : found->get<std::string>();
}

platform::Currency MoneyIn(const nlohmann::json& content, const char* field) {
    try {
        return platform::StrToMoney(TextIn(content, field));
    } catch (const platform::Error&) {
        return {};
    }
}

/// Adds a row to the digest. If it had been deleted before, it has no content, and so no amount.
void AddTo(RunDigest& digest, const core::TakenRow& taken) {
    const auto stored = core::FindTakenBack(taken);
    const auto content =
        nlohmann::json::parse(stored ? stored->content : std::string(), nullptr, false);
    const bool isEvent = taken.recordKind == core::kAutoEvent;
    const std::string category = TextIn(content, isEvent ? "TaxCategory" : "Category");
    digest.Posted(
        taken.recordKind, taken.recordId, core::NameOfRecord(taken.recordKind, taken.recordId),
        {{.date = taken.date,
          .category = category,
          .amount = MoneyIn(content, taken.recordKind == core::kMortgage ? "Total" : "Amount"),
          .reason = core::RunReason{.posting = taken.posting},
          .id = taken.rowId}});
}

} // namespace

std::shared_ptr<const TakenRows> ReadTakenRows() {
    auto rows = std::make_shared<TakenRows>();
    for (core::TakenRow& row : core::ReadTakenBack())
        rows->emplace(row.rowId, std::move(row));
    return rows;
}

TakenRows::const_iterator FindTaken(const TakenRows& taken, const DigestRow& row) {
    const core::TakenRow wanted = TakenRowOf(row);
    const auto [first, end] = taken.equal_range(row.rowId);
    const auto found =
        std::find_if(first, end, [&](const auto& each) { return each.second.IsSameRow(wanted); });
    return found == end ? taken.end() : found;
}

std::optional<PastRun> RunOfTakenRows(const TakenRows& taken, const std::vector<PastRun>& runs) {
    TakenRows left = taken;
    for (const PastRun& run : runs) {
        for (const DigestRow& row : run.digest.Rows()) {
            if (const auto found = FindTaken(left, row); found != left.end()) left.erase(found);
        }
    }
    if (left.empty()) return std::nullopt;
    PastRun run{.name = std::string(kRunOfTakenRows), .at = "Taken back, of earlier runs"};
    std::vector<core::TakenRow> rows;
    std::ranges::copy(left | std::views::values, std::back_inserter(rows));
    std::ranges::stable_sort(rows, {}, &core::TakenRow::date);
    for (const core::TakenRow& row : rows)
        AddTo(run.digest, row);
    run.day = rows.back().date;
    return run;
}

} // namespace shell
